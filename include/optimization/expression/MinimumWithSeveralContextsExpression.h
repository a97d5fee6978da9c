#pragma once

#include "optimization/expression/SeveralFunctionsExpression.h"

// A node of a formula: the smallest of its children's values, each child read on its own element.
class MinimumWithSeveralContextsExpression : public SeveralFunctionsExpression {
 public:
  MinimumWithSeveralContextsExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                       std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
};
