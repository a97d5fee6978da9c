#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A leaf of a formula: a number the user typed.
class ConstantExpression : public ExpressionDefinition {
 public:
  ConstantExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                     std::string description = "fx()", double value = 0.0);

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  double getValue() const { return value; }
  void setValue(double newValue) { value = newValue; }

 private:
  double value;
};
