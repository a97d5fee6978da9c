#pragma once

#include <nlohmann/json.hpp>

#include "core/RuleSettings.h"
#include "project/JsonLoadSettings.h"

// Reads a node's settings in a rule scenario (junctions, basins and demands): "elementID" and
// "AllocationMatrix", and in each row of the matrix "ID" and "Values", are all required.
class JsonLoadSettingsRule : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  void load(const nlohmann::json& object) const override;

  // Reads object into settings. Throws as load().
  static void loadRuleSettings(const nlohmann::json& object, RuleSettings& settings);
};
