#pragma once

#include <string>

#include "project/JsonSaveSettingsRuleReservoir.h"

// Writes a reservoir's settings in a guarantee-curve scenario: its rule settings wrapped,
// {"ReservoirRuleSettings":{...},"isGuaranteeCurve":<0|1>}.
class JsonSaveSettingsGuaranteeCurveReservoir : public JsonSaveSettingsRuleReservoir {
 public:
  using JsonSaveSettingsRuleReservoir::JsonSaveSettingsRuleReservoir;
  std::string toJson() const override;
};
