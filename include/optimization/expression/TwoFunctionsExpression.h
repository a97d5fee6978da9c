#pragma once

#include <utility>
#include <vector>

#include "optimization/expression/ElementStoreExpression.h"

// A node with two children, the first read on the first of two elements and the second on the
// second.
class TwoFunctionsExpression : public ElementStoreExpression {
 public:
  using ElementStoreExpression::ElementStoreExpression;

  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;
  std::vector<unsigned int> getElementIDs() const override { return {firstID, secondID}; }

  const ExpressionPtr& getFirstExpression() const { return firstExpression; }
  const ExpressionPtr& getSecondExpression() const { return secondExpression; }
  void setFirstExpression(ExpressionPtr child) { firstExpression = std::move(child); }
  void setSecondExpression(ExpressionPtr child) { secondExpression = std::move(child); }
  // Index 0 is the first child's element, 1 the second's.
  void changeIDInIndex(std::size_t index, unsigned int elementID);

 protected:
  // Checks that the context holds exactly two elements, with countText otherwise.
  static void requireTwoElements(const Context& context, const char* countText);
  double first(const Context& context) const;
  double second(const Context& context) const;

 private:
  ExpressionPtr firstExpression;
  ExpressionPtr secondExpression;
  unsigned int firstID = 0;
  unsigned int secondID = 0;
};
