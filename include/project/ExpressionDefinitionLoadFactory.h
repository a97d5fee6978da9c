#pragma once

#include <memory>

#include "project/ExpressionDefinitionJsonLoad.h"

// Chooses the reader of a node of a formula by its type.
class ExpressionDefinitionLoadFactory {
 public:
  // Throws std::invalid_argument "ExpressionDefinitionLoadFactory::make(): invalid
  // expressionDefinition" for a type without a reader.
  static std::shared_ptr<ExpressionDefinitionJsonLoad> make(ExpressionType type);
};
