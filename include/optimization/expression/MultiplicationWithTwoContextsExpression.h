#pragma once

#include "optimization/expression/TwoFunctionsExpression.h"

// A node of a formula: the first child on the first element times the second on the second.
class MultiplicationWithTwoContextsExpression : public TwoFunctionsExpression {
 public:
  MultiplicationWithTwoContextsExpression(std::weak_ptr<ExpressionDefinition> parent,
                                          std::string name, std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;

 private:
  std::string render(bool general) const;
};
