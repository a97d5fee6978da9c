#pragma once

#include <memory>

#include "project/ExpressionDefinitionJsonSave.h"

// Chooses the writer of a node of a formula by its type.
class ExpressionDefinitionSaveFactory {
 public:
  // Throws std::invalid_argument "ExpressionDefinitionSaveFactory::make(): invalid
  // expressionDefinition" for a missing node or a type without a writer, so that a formula with
  // a hole is never written.
  static std::shared_ptr<ExpressionDefinitionJsonSave> make(const ExpressionPtr& expression);
};
