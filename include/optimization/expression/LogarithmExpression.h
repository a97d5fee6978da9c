#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: the logarithm of logarithming in base.
class LogarithmExpression : public ExpressionDefinition {
 public:
  LogarithmExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                      std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getLogarithmingExpression() const { return logarithming; }
  void setLogarithmingExpression(ExpressionPtr value) { logarithming = std::move(value); }
  const ExpressionPtr& getBaseExpression() const { return base; }
  void setBaseExpression(ExpressionPtr value) { base = std::move(value); }

 private:
  std::string render(bool general) const;

  ExpressionPtr logarithming;
  ExpressionPtr base;
};
