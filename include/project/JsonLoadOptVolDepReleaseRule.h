#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadVolDepOneReleaseRule.h"
#include "project/JsonLoadVolDepTwoReleaseRule.h"

// Reads an optimisable rule by the volume of one reservoir, static or periodic alike: the keys of
// the simulation rule, then the flags "OptVolDepOneVector" (one row per row of "VolDepOneVector",
// as many release flags as releases) and "maxRelease".
class JsonLoadOptVolDepOneReleaseRule : public JsonLoadVolDepOneReleaseRule {
 public:
  using JsonLoadVolDepOneReleaseRule::JsonLoadVolDepOneReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads an optimisable rule by the volumes of two reservoirs, static or periodic alike: the keys
// of the simulation rule, then the flags "OptVolumePercentageD1", "OptVolumePercentageD2" and
// "OptRelease" in the shapes of the values they mark, and "maxRelease".
class JsonLoadOptVolDepTwoReleaseRule : public JsonLoadVolDepTwoReleaseRule {
 public:
  using JsonLoadVolDepTwoReleaseRule::JsonLoadVolDepTwoReleaseRule;
  void load(const nlohmann::json& object) const override;
};
