#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveExecutionMethod.h"

// Chooses the writer of an execution method by the name of its type ("Contínuo", "Janela").
class JsonSaveExecutionMethodFactory {
 public:
  // The writer of method. Throws std::invalid_argument
  // "JsonSaveExecutionMethodFactory::make(): invalid ExecutionType" for a type without a writer.
  static std::shared_ptr<JsonSaveExecutionMethod> make(
      const std::shared_ptr<ExecutionMethod>& method);
  // The names of the types that have a writer.
  static std::vector<std::string> keys();
};
