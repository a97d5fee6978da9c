#pragma once

#include <string>

#include "project/JsonSaveReleaseRule.h"

// The optimisable rules with numbers of their own. Unlike the simulation rules they spell
// "release" in lower case, as the format has it. The optimisable rule without parameters is
// written {} by JsonSaveReleaseRule.

// {"release":<m³/s>,"toOpt":<0|1>,"lowerRelease":<m³/s>,"upperRelease":<m³/s>}
class JsonSaveOptConstReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};

// {"release":[twelve, m³/s],"toOpt":[twelve 0|1],"lowerRelease":<m³/s>,"upperRelease":<m³/s>}
class JsonSaveOptPeriodicReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};

// {"Vazão liberada":[series],"Otimização":[series of 1.0 on the dates to optimise],
// "maxRelease":<m³/s>}
class JsonSaveOptSerieReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;

  // The key of the series of flags.
  static const std::string kToOptKey;
};

// {"Reservoirs":[ids],"NumOfStates":n,"ProportionalZones":[..],"OptProportionalZones":[0|1..],
// "Release":[m³/s..],"OptRelease":[0|1..],"RequiredGuarantees":[%..],"maxRelease":<m³/s>}
class JsonSaveOptHydrologicalStateReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;
};
