#pragma once

#include <string>

#include "project/JsonSaveReleaseRule.h"

// Writes a rule by hydrological state: {"Reservoirs":[ids of the system],"NumOfStates":..,
// "ProportionalZones":[shares of the capacity],"Release":[one per zone, m³/s]}.
class JsonSaveHydrologicalStateReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};
