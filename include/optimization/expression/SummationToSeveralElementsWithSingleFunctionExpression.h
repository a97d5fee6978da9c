#pragma once

#include <utility>
#include <vector>

#include "optimization/expression/ElementStoreExpression.h"

// A node of a formula: one child read once on each element alone, the values summed.
class SummationToSeveralElementsWithSingleFunctionExpression : public ElementStoreExpression {
 public:
  SummationToSeveralElementsWithSingleFunctionExpression(std::weak_ptr<ExpressionDefinition> parent,
                                                         std::string name,
                                                         std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;
  std::vector<unsigned int> getElementIDs() const override { return elementIDs; }

  const ExpressionPtr& getExpression() const { return expression; }
  void setExpression(ExpressionPtr child) { expression = std::move(child); }
  void setVectorOfElementIDs(std::vector<unsigned int> ids) { elementIDs = std::move(ids); }

 private:
  std::string render(bool general) const;

  ExpressionPtr expression;
  std::vector<unsigned int> elementIDs;
};
