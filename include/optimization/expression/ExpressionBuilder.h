#pragma once

#include <cstddef>
#include <vector>

#include "optimization/expression/ExpressionDefinition.h"

// Makes a node of a formula with default children, so that the formula dialog can show a new node
// at once: constants of 0 named "fx()" (the denominator of a division is 1, so that a new division
// can be evaluated), two operands where a node takes any number of them, and the first elements
// of the current scenario where the children are read on elements.
class ExpressionBuilder {
 public:
  // The new node of type under parent. Throws std::invalid_argument "ExpressionBuilder::make():
  // invalid expressionType" for a type without a node.
  static ExpressionPtr build(ExpressionType type, std::weak_ptr<ExpressionDefinition> parent = {});

  // count new constants under parent.
  static std::vector<ExpressionPtr> buildVectorOfExpressions(std::size_t count,
                                                             const ExpressionPtr& parent);
  // The ids of the first count elements of the current scenario, in its order; fewer when it has
  // fewer elements, none without a current scenario.
  static std::vector<unsigned int> buildVectorOfElementIDs(std::size_t count);
};
