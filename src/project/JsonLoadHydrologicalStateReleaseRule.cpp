#include "project/JsonLoadHydrologicalStateReleaseRule.h"

#include <vector>

#include "project/JsonLoadHelper.h"
#include "rules/HydrologicalStateReleaseRule.h"

using Helper = JsonLoadHelper;

void JsonLoadHydrologicalStateReleaseRule::load(const nlohmann::json& object) const {
  auto& rule = getRule<HydrologicalStateReleaseRule>();
  rule.setReservoirsIdsOfSystem(
      Helper::getRequired<std::vector<unsigned int>>(object, "Reservoirs"));
  rule.setStates(Helper::getRequired<unsigned int>(object, "NumOfStates"),
                 Helper::getRequired<std::vector<double>>(object, "ProportionalZones"),
                 Helper::getRequired<std::vector<double>>(object, "Release"));
}
