#pragma once

#include "optimization/expression/SingleElementExpression.h"

// A node of a formula: the plain sum of its children's values, each child read in the whole
// context, so that a child over several elements still sees them all.
class SumExpression : public SingleElementExpression {
 public:
  SumExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
};
