#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveElement.h"

// Chooses the writer of an element by the name of its type ("Reservatório", "Trecho natural").
class JsonSaveElementFactory {
 public:
  // The writer of element in scenario. Throws std::invalid_argument
  // "JsonSaveElementFactory::make(): invalid elementType" for a type without a writer.
  static std::shared_ptr<JsonSaveElement> make(const std::shared_ptr<Element>& element,
                                               const std::shared_ptr<Scenario>& scenario);
  // The names of the types that have a writer.
  static std::vector<std::string> keys();
};
