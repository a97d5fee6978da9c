#pragma once

#include <string>

#include "project/JsonSaveSettings.h"

// Writes a reservoir's settings in a rule scenario: {"SettingsRule":{...}}, with
// "ReleaseRuleType" and "ReleaseRule" after it when the reservoir has a release rule.
class JsonSaveSettingsRuleReservoir : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  // As JsonSaveSettings; also throws std::invalid_argument from JsonSaveReleaseRuleFactory for a
  // rule without a writer.
  std::string toJson() const override;
};
