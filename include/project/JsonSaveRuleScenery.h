#pragma once

#include <string>

#include "project/JsonSaveScenario.h"

// Writes a rule scenario: the common keys and the pumping study's deficit costs,
// "pumpingConfig":{"demandDeficits":[[...]]}. The costs are one list written as a one-row matrix,
// as the format has it.
class JsonSaveRuleScenery : public JsonSaveScenario {
 public:
  using JsonSaveScenario::JsonSaveScenario;

  // "pumpingConfig":{"demandDeficits":[[...]]} with the deficit cost of each demand type of
  // scenario, in the pumping study's order; the priority scenario writes the same member.
  static std::string toJsonPumpingConfig(const Scenario& scenario);

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
