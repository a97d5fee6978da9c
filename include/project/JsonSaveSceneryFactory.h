#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveScenario.h"

// Chooses the writer of a scenario by the name of its type ("Simulador por regras").
class JsonSaveSceneryFactory {
 public:
  // The writer of scenario. Throws std::invalid_argument
  // "JsonSaveSceneryFactory::make(): invalid scenarioType" for a type without a writer.
  static std::shared_ptr<JsonSaveScenario> make(const std::shared_ptr<Scenario>& scenario);
  // The names of the types that have a writer.
  static std::vector<std::string> keys();
};
