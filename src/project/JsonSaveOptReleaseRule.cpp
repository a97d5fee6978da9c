#include "project/JsonSaveOptReleaseRule.h"

#include <vector>

#include "project/JsonOptFlags.h"
#include "project/JsonSaveBuilder.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"

using B = JsonSaveBuilder;

const std::string JsonSaveOptSerieReleaseRule::kToOptKey = "Otimização";

std::string JsonSaveOptConstReleaseRule::toJson() const {
  const auto& rule = getRule<OptConstReleaseRule>();
  return B::makeObject({B::makeJsonKeyValue("release", rule.getRelease()),
                        B::makeJsonKeyValue("toOpt", rule.getToOpt()),
                        B::makeJsonKeyValue("lowerRelease", rule.getLowerRelease()),
                        B::makeJsonKeyValue("upperRelease", rule.getUpperRelease())});
}

std::string JsonSaveOptPeriodicReleaseRule::toJson() const {
  const auto& rule = getRule<OptPeriodicReleaseRule>();
  const std::vector<bool>& flags = rule.getToOptVec();
  return B::makeObject(
      {B::makeJsonKeyValue("release", B::makeVectorOfFloatingValues(rule.getRelease())),
       B::makeJsonKeyValue("toOpt",
                           B::makeArray(flags, [](bool f) { return std::string(f ? "1" : "0"); })),
       B::makeJsonKeyValue("lowerRelease", rule.getLowerRelease()),
       B::makeJsonKeyValue("upperRelease", rule.getUpperRelease())});
}

std::string JsonSaveOptSerieReleaseRule::toJson() const {
  const auto& rule = getRule<OptSerieReleaseRule>();
  return B::makeObject({B::makeSerie(*rule.getReleaseSerie()),
                        B::makeSerie(kToOptKey, *rule.getToOptSerie()),
                        B::makeJsonKeyValue("maxRelease", rule.getMaxRelease())});
}

std::string JsonSaveOptHydrologicalStateReleaseRule::toJson() const {
  const auto& rule = getRule<OptHydrologicalStateReleaseRule>();
  return B::makeObject(
      {B::makeJsonKeyValue("Reservoirs", B::makeVectorOfIntegerValues(rule.getReservoirsIds())),
       B::makeJsonKeyValue("NumOfStates", rule.getNumOfStates()),
       B::makeJsonKeyValue("ProportionalZones",
                           B::makeVectorOfFloatingValues(rule.getVectorOfProportionalZones())),
       B::makeJsonKeyValue("OptProportionalZones",
                           JsonOptFlags::write(rule.getVectorOfOptProportionalZones(),
                                               rule.getVectorOfProportionalZones().size())),
       B::makeJsonKeyValue("Release", B::makeVectorOfFloatingValues(rule.getRelease())),
       B::makeJsonKeyValue("OptRelease",
                           JsonOptFlags::write(rule.getOptRelease(), rule.getRelease().size())),
       B::makeJsonKeyValue("RequiredGuarantees",
                           B::makeVectorOfFloatingValues(rule.getRequiredGuarantees())),
       B::makeJsonKeyValue("maxRelease", rule.getMaxRelease())});
}
