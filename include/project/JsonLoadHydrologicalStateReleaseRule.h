#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadReleaseRule.h"

// Reads a rule by hydrological state: "Reservoirs" (ids, resolved once the scenario is read),
// "NumOfStates", "ProportionalZones" and "Release" (m³/s).
class JsonLoadHydrologicalStateReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};
