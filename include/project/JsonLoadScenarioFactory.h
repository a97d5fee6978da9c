#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonLoadScenario.h"

// Chooses the reader of a scenario by the name of its type ("Simulador por regras").
class JsonLoadScenarioFactory {
 public:
  // A reader for type. Throws std::invalid_argument
  // "JsonLoadScenarioFactory::make(): invalid scenarioType" for a name without a reader.
  static std::shared_ptr<JsonLoadScenario> make(const std::string& type);
  // The names of the types that have a reader.
  static std::vector<std::string> keys();
};
