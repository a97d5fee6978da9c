#include "optimization/expression/SampleStandardDeviationWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SampleStandardDeviationWithSeveralContextsExpression::
    SampleStandardDeviationWithSeveralContextsExpression(std::weak_ptr<ExpressionDefinition> parent,
                                                         std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::sampleStandardDeviationWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double SampleStandardDeviationWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::stdDeviationConsideringSampleVariance(valuesPerElement(
      context,
      "SampleStandardDeviationWithSeveralContextsExpression::interpret invalid element count"));
}

std::string SampleStandardDeviationWithSeveralContextsExpression::getPreVisualization() const {
  return joined("sampleStdDev(", ",", ")", false);
}

std::string SampleStandardDeviationWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("sampleStdDev(", ",", ")", true);
}
