#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadReleaseRule.h"

// Reads a rule by the volumes of two other reservoirs, static or periodic alike: "Reservoir1" and
// "Reservoir2" (ids, each null or absent for none), "VolumePercentageD1", "VolumePercentageD2" and
// the nest "Release" [month slot][row of D1][row of D2].
class JsonLoadVolDepTwoReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};
