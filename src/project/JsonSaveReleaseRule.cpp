#include "project/JsonSaveReleaseRule.h"

#include "project/JsonSaveBuilder.h"
#include "rules/ConstReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"

using B = JsonSaveBuilder;

JsonSaveReleaseRule::JsonSaveReleaseRule(std::shared_ptr<ReleaseRule> rule)
    : rule(std::move(rule)) {}

std::string JsonSaveReleaseRule::toJson() const { return B::makeObject({}); }

std::string JsonSaveConstReleaseRule::toJson() const {
  return B::makeObject({B::makeJsonKeyValue("Release", getRule<ConstReleaseRule>().getRelease())});
}

std::string JsonSavePeriodicReleaseRule::toJson() const {
  const auto& releases = getRule<PeriodicReleaseRule>().getRelease();
  return B::makeObject({B::makeJsonKeyValue("Release", B::makeVectorOfFloatingValues(releases))});
}

std::string JsonSaveSerieReleaseRule::toJson() const {
  return B::makeObject({B::makeSerie(*getRule<SerieReleaseRule>().getReleaseSerie())});
}
