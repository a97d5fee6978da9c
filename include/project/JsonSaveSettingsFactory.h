#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "project/JsonSaveSettings.h"

// Chooses the writer of an element's settings by the names of the scenario's type and of the
// element's type ("Simulador por regras", "Reservatório").
class JsonSaveSettingsFactory {
 public:
  // The writer of element's settings in scenario. Throws std::invalid_argument
  // "JsonSaveSettingsFactory::make(): invalid parameter key" for a pair without a writer.
  static std::shared_ptr<JsonSaveSettings> make(const std::shared_ptr<Element>& element,
                                                const std::shared_ptr<Scenario>& scenario);
  // The pairs that have a writer.
  static std::vector<std::pair<std::string, std::string>> keys();
};
