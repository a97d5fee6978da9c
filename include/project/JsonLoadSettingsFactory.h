#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "project/JsonLoadSettings.h"

// Chooses the reader of an element's settings by the names of the scenario's type and of the
// element's type ("Simulador por regras", "Reservatório").
class JsonLoadSettingsFactory {
 public:
  // The reader of element's settings in scenario. Throws std::invalid_argument
  // "JsonSaveSettingsFactory::make(): invalid parameter key" for a pair without a reader: the
  // reading side keeps the writing side's text, as other readers of the format expect.
  static std::shared_ptr<JsonLoadSettings> make(const std::shared_ptr<Element>& element,
                                                const std::shared_ptr<Scenario>& scenario);
  // The pairs that have a reader.
  static std::vector<std::pair<std::string, std::string>> keys();
};
