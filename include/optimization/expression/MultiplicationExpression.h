#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: a * b.
class MultiplicationExpression : public ExpressionDefinition {
 public:
  MultiplicationExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                           std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getFirstExpression() const { return firstExpression; }
  void setFirstExpression(ExpressionPtr value) { firstExpression = std::move(value); }
  const ExpressionPtr& getSecondExpression() const { return secondExpression; }
  void setSecondExpression(ExpressionPtr value) { secondExpression = std::move(value); }

 private:
  std::string render(bool general) const;

  ExpressionPtr firstExpression;
  ExpressionPtr secondExpression;
};
