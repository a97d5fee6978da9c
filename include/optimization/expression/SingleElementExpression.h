#pragma once

#include <string>
#include <vector>

#include "optimization/expression/ExpressionDefinition.h"

// A node over any number of children, all read on the same element: the sum and the statistics
// of the children's values.
class SingleElementExpression : public ExpressionDefinition {
 public:
  using ExpressionDefinition::ExpressionDefinition;

  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  // Grows with empty places or drops the last children, for the dialog's count of operands.
  void setExpressionsCount(std::size_t count);
  void addExpression(ExpressionPtr child);
  void changeExpression(std::size_t index, ExpressionPtr child);
  void removeLastExpression();

 protected:
  // The children's values, each read in a context of the first element alone. The two texts
  // name the failure of an empty element list and of a node without children.
  std::vector<double> valuesOnFirstElement(const Context& context, const char* noElementText,
                                           const char* noChildText) const;
  std::vector<double> values(const Context& context) const;
  // prefix, then the children's texts joined by separator, then suffix.
  std::string joined(const std::string& prefix, const std::string& separator,
                     const std::string& suffix, bool general) const;

 private:
  std::vector<ExpressionPtr> expressions;
};
