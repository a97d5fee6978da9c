#pragma once

#include "project/JsonSaveScenario.h"

// Writes a rule scenario: the common keys and the pumping study's deficit costs,
// "pumpingConfig":{"demandDeficits":[[...]]}. The costs are one list written as a one-row matrix,
// as the format has it.
class JsonSaveRuleScenery : public JsonSaveScenario {
 public:
  using JsonSaveScenario::JsonSaveScenario;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
