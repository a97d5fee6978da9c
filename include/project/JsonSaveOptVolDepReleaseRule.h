#pragma once

#include <string>

#include "project/JsonSaveVolDepOneReleaseRule.h"
#include "project/JsonSaveVolDepTwoReleaseRule.h"

// The optimisable rules by the volume of one reservoir, static or periodic alike: the keys of the
// simulation rule, then "OptVolDepOneVector":[{"OptPercentage":<0|1>,"OptRelease":[0|1...]},...]
// in the shape of "VolDepOneVector", then "maxRelease".
class JsonSaveOptVolDepOneReleaseRule : public JsonSaveVolDepOneReleaseRule {
 public:
  using JsonSaveVolDepOneReleaseRule::JsonSaveVolDepOneReleaseRule;
  std::string toJson() const override;
};

// The optimisable rules by the volumes of two reservoirs, static or periodic alike: the keys of
// the simulation rule, then the flags "OptVolumePercentageD1", "OptVolumePercentageD2" and the
// nest "OptRelease" in the shapes of their plain keys, then "maxRelease".
class JsonSaveOptVolDepTwoReleaseRule : public JsonSaveVolDepTwoReleaseRule {
 public:
  using JsonSaveVolDepTwoReleaseRule::JsonSaveVolDepTwoReleaseRule;
  std::string toJson() const override;
};
