#pragma once

#include "optimization/expression/SingleElementExpression.h"

// A node of a formula: the plain sum of the children, each read in the whole context of its
// children's values.
class SumExpression : public SingleElementExpression {
 public:
  SumExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
};
