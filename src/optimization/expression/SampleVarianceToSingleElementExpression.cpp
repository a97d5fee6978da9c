#include "optimization/expression/SampleVarianceToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SampleVarianceToSingleElementExpression::SampleVarianceToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::sampleVariance),
          std::move(parent), std::move(name), std::move(description)) {}

double SampleVarianceToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::sampleVariance(valuesOnFirstElement(
      context, "SampleVarianceToSingleElementExpression::interpret invalid element count",
      "SampleVarianceWithSeveralContextsExpression::interpret invalid element count"));
}

std::string SampleVarianceToSingleElementExpression::getPreVisualization() const {
  return joined("sampleVar(", ",", ")", false);
}

std::string SampleVarianceToSingleElementExpression::getGeneralFormat() const {
  return joined("sampleVar(", ",", ")", true);
}
