#include "project/JsonSaveVolDepTwoReleaseRule.h"

#include <vector>

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveVolDepOneReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"

using B = JsonSaveBuilder;

std::string JsonSaveVolDepTwoReleaseRule::toJson() const { return B::makeObject(members()); }

JsonSaveBuilder::Members JsonSaveVolDepTwoReleaseRule::members() const {
  const auto& rule = getRule<VolDepTwoReleaseRule>();
  const VolDepTwoReleaseStruct& table = rule.getVolDepTwoReleaseStruct();
  const auto slot = [](const std::vector<std::vector<double>>& rows) {
    return B::makeArray(rows, B::makeVectorOfFloatingValues);
  };
  using One = JsonSaveVolDepOneReleaseRule;
  return {B::makeJsonKeyValue("Reservoir1", One::dependencyValue(rule.getReservoirDependency1())),
          B::makeJsonKeyValue("Reservoir2", One::dependencyValue(rule.getReservoirDependency2())),
          B::makeJsonKeyValue("VolumePercentageD1",
                              B::makeVectorOfFloatingValues(table.volumePercentageD1)),
          B::makeJsonKeyValue("VolumePercentageD2",
                              B::makeVectorOfFloatingValues(table.volumePercentageD2)),
          B::makeJsonKeyValue("Release", B::makeArray(table.releases, slot))};
}
