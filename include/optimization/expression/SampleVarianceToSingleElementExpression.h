#pragma once

#include "optimization/expression/SingleElementExpression.h"

// A node of a formula: the sample variance of its children's values, all read on the first element
// of the context.
class SampleVarianceToSingleElementExpression : public SingleElementExpression {
 public:
  SampleVarianceToSingleElementExpression(std::weak_ptr<ExpressionDefinition> parent,
                                          std::string name, std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
};
