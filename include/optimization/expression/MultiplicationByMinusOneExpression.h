#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: -child.
class MultiplicationByMinusOneExpression : public ExpressionDefinition {
 public:
  MultiplicationByMinusOneExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                     std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getExpressionToBeMultiplied() const { return expressionToBeMultiplied; }
  void setExpressionToBeMultiplied(ExpressionPtr value) {
    expressionToBeMultiplied = std::move(value);
  }

 private:
  std::string render(bool general) const;

  ExpressionPtr expressionToBeMultiplied;
};
