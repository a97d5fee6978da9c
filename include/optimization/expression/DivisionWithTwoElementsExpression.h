#pragma once

#include "optimization/expression/TwoFunctionsExpression.h"

// A node of a formula: the first child on the first element over the second on the second, refusing
// a denominator within 1e-6 of zero.
class DivisionWithTwoElementsExpression : public TwoFunctionsExpression {
 public:
  DivisionWithTwoElementsExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                    std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;

 private:
  static constexpr double zeroTolerance = 1e-6;

  std::string render(bool general) const;
};
