#pragma once

#include <string>

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveReleaseRule.h"

// Writes a rule by the volumes of two other reservoirs, static or periodic alike:
// {"Reservoir1":<id or null>,"Reservoir2":<id or null>,"VolumePercentageD1":[%...],
// "VolumePercentageD2":[%...],"Release":[[[m³/s...]]]}, the releases nested as the rule holds them:
// month slot (one for the static rule, twelve for the periodic), row of D1, row of D2.
class JsonSaveVolDepTwoReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;

 protected:
  // The rule's members, in order.
  JsonSaveBuilder::Members members() const;
};
