#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: child ^ exponent.
class PotentiationExpression : public ExpressionDefinition {
 public:
  PotentiationExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                         std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getBaseExpression() const { return baseExpression; }
  void setBaseExpression(ExpressionPtr value) { baseExpression = std::move(value); }
  int getExponent() const { return exponent; }
  void setExponent(int value) { exponent = value; }

 private:
  std::string render(bool general) const;

  ExpressionPtr baseExpression;
  int exponent = 2;
};
