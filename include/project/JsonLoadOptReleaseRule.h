#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadHydrologicalStateReleaseRule.h"
#include "project/JsonLoadReleaseRule.h"

// Readers of the optimisable rules with numbers of their own; each key is required. A flag table
// ("toOpt", "Opt...") must have the shape of the values it marks. The optimisable rule without
// parameters is read by JsonLoadReleaseRule.

// Reads {"release":..,"toOpt":0|1,"lowerRelease":..,"upperRelease":..}.
class JsonLoadOptConstReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads {"release":[twelve],"toOpt":[twelve 0|1],"lowerRelease":..,"upperRelease":..}.
class JsonLoadOptPeriodicReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads the release series "Vazão liberada", the flag series "Otimização" and "maxRelease".
class JsonLoadOptSerieReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;
};

// Reads the keys of the rule by hydrological state, then "OptProportionalZones" and "OptRelease"
// (flags over "ProportionalZones" and "Release"), "RequiredGuarantees" and "maxRelease".
class JsonLoadOptHydrologicalStateReleaseRule : public JsonLoadHydrologicalStateReleaseRule {
 public:
  using JsonLoadHydrologicalStateReleaseRule::JsonLoadHydrologicalStateReleaseRule;
  void load(const nlohmann::json& object) const override;
};
