#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadSettings.h"

// Reads a reservoir's settings in a rule scenario: the required "SettingsRule" and, when
// "ReleaseRuleType" is present, a new rule of that name with its "ReleaseRule" object (then
// required). Without a rule type the reservoir keeps the rule it had.
class JsonLoadSettingsRuleReservoir : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  // As JsonLoadSettings::load(); also throws std::invalid_argument
  // "ReleaseRuleFactory::make(): invalid ReleaseRuleType" for an unknown rule name, the reader
  // factory's text for a rule without a reader, and the rule's own exceptions for values it
  // refuses.
  void load(const nlohmann::json& object) const override;
};
