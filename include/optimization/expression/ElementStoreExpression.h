#pragma once

#include <vector>

#include "optimization/expression/ExpressionDefinition.h"

// A node that names the elements its children are read on; the caller fills the context's
// elements from these ids, in their order.
class ElementStoreExpression : public ExpressionDefinition {
 public:
  using ExpressionDefinition::ExpressionDefinition;

  virtual std::vector<unsigned int> getElementIDs() const = 0;
};
