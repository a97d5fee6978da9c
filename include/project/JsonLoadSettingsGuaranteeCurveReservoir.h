#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadSettingsRuleReservoir.h"

// Reads a reservoir's settings in a guarantee-curve scenario: the required
// "ReservoirRuleSettings", read as a rule reservoir's, and the optional mark "isGuaranteeCurve".
class JsonLoadSettingsGuaranteeCurveReservoir : public JsonLoadSettingsRuleReservoir {
 public:
  using JsonLoadSettingsRuleReservoir::JsonLoadSettingsRuleReservoir;
  void load(const nlohmann::json& object) const override;
};
