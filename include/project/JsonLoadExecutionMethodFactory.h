#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonLoadExecutionMethod.h"

// Chooses the reader of an execution method by the name of its type ("Contínuo", "Janela").
class JsonLoadExecutionMethodFactory {
 public:
  // The reader for type. Throws std::invalid_argument
  // "JsonLoadExecutionMethodFactory::make(): invalid ExecutionType" for a name without a reader.
  static std::shared_ptr<JsonLoadExecutionMethod> make(const std::string& type);
  // The names of the types that have a reader.
  static std::vector<std::string> keys();
};
