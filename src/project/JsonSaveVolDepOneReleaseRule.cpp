#include "project/JsonSaveVolDepOneReleaseRule.h"

#include "core/Element.h"
#include "project/JsonSaveBuilder.h"
#include "rules/VolDepOneReleaseRule.h"

using B = JsonSaveBuilder;

std::string JsonSaveVolDepOneReleaseRule::toJson() const { return B::makeObject(members()); }

JsonSaveBuilder::Members JsonSaveVolDepOneReleaseRule::members() const {
  const auto& rule = getRule<VolDepOneReleaseRule>();
  const auto row = [](const VolDepOneReleaseStruct& step) {
    return B::makeObject(
        {B::makeJsonKeyValue("Percentage", step.percentage),
         B::makeJsonKeyValue("Release", B::makeVectorOfFloatingValues(step.releases))});
  };
  return {B::makeJsonKeyValue("Reservoir", dependencyValue(rule.getReservoirDependency())),
          B::makeJsonKeyValue("VolDepOneVector",
                              B::makeArray(rule.getVectorOfVolDepOneReleaseStruct(), row))};
}

std::string JsonSaveVolDepOneReleaseRule::dependencyValue(
    const std::shared_ptr<Element>& dependency) {
  return dependency ? std::to_string(dependency->getId()) : "null";
}
