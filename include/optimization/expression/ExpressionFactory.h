#pragma once

#include <string>

#include "optimization/expression/ExpressionDefinition.h"

// Makes the node of a formula of a type, without children.
class ExpressionFactory {
 public:
  // Throws std::invalid_argument "ExpressionFactory::make(): invalid expressionType" for a type
  // without a node.
  static ExpressionPtr make(ExpressionType type, std::weak_ptr<ExpressionDefinition> parent,
                            std::string name, std::string description);
};
