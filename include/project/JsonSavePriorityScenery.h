#pragma once

#include "project/JsonSaveScenario.h"

// Writes a priority scenario: the common keys, then its hydrological states,
// "HydrologicalStateType":"<name>","xValues":[...],"numberOfStatesMonthly":n, and the pumping
// study's deficit costs as a rule scenario writes them.
class JsonSavePriorityScenery : public JsonSaveScenario {
 public:
  using JsonSaveScenario::JsonSaveScenario;

 protected:
  // Throws std::invalid_argument
  // "JsonSavePriorityScenery::toJson(): the scenario is no priority scenario" for a scenario of
  // another class.
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
