#pragma once

#include <string>

#include "core/RuleSettings.h"
#include "project/JsonSaveSettings.h"

// Writes a node's settings in a rule scenario (junctions, basins and demands):
// {"elementID":..,"AllocationMatrix":[{"ID":..,"Values":[...]},...]}, one row per id of the
// allocation in increasing order, the node's own row of totals among them (m³/s).
class JsonSaveSettingsRule : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  std::string toJson() const override;

  // The object of settings.
  static std::string toJsonRuleSettings(const RuleSettings& settings);
};
