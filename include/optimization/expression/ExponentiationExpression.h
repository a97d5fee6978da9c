#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: baseConstant ^ child.
class ExponentiationExpression : public ExpressionDefinition {
 public:
  ExponentiationExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                           std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getExponentExpression() const { return exponentExpression; }
  void setExponentExpression(ExpressionPtr value) { exponentExpression = std::move(value); }
  int getBaseConstant() const { return baseConstant; }
  void setBaseConstant(int value) { baseConstant = value; }

 private:
  std::string render(bool general) const;

  ExpressionPtr exponentExpression;
  int baseConstant = 2;
};
