#include "optimization/expression/SampleVarianceWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SampleVarianceWithSeveralContextsExpression::SampleVarianceWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::sampleVarianceWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double SampleVarianceWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::sampleVariance(valuesPerElement(
      context, "SampleVarianceWithSeveralContextsExpression::interpret invalid element count"));
}

std::string SampleVarianceWithSeveralContextsExpression::getPreVisualization() const {
  return joined("sampleVar(", ",", ")", false);
}

std::string SampleVarianceWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("sampleVar(", ",", ")", true);
}
