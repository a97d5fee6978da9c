#include "project/JsonSaveHydrologicalStateReleaseRule.h"

#include "project/JsonSaveBuilder.h"
#include "rules/HydrologicalStateReleaseRule.h"

using B = JsonSaveBuilder;

std::string JsonSaveHydrologicalStateReleaseRule::toJson() const {
  const auto& rule = getRule<HydrologicalStateReleaseRule>();
  return B::makeObject(
      {B::makeJsonKeyValue("Reservoirs", B::makeVectorOfIntegerValues(rule.getReservoirsIds())),
       B::makeJsonKeyValue("NumOfStates", rule.getNumOfStates()),
       B::makeJsonKeyValue("ProportionalZones",
                           B::makeVectorOfFloatingValues(rule.getVectorOfProportionalZones())),
       B::makeJsonKeyValue("Release", B::makeVectorOfFloatingValues(rule.getRelease()))});
}
