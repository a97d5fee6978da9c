#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: numerator / denominator, refusing a denominator within 1e-6 of zero.
class DivisionExpression : public ExpressionDefinition {
 public:
  DivisionExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                     std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getNumeratorExpression() const { return numerator; }
  void setNumeratorExpression(ExpressionPtr value) { numerator = std::move(value); }
  const ExpressionPtr& getDenominatorExpression() const { return denominator; }
  void setDenominatorExpression(ExpressionPtr value) { denominator = std::move(value); }

 private:
  static constexpr double zeroTolerance = 1e-6;

  ExpressionPtr numerator;
  ExpressionPtr denominator;
};
