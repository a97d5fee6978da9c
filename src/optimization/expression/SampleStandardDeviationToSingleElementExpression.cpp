#include "optimization/expression/SampleStandardDeviationToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SampleStandardDeviationToSingleElementExpression::SampleStandardDeviationToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                  ExpressionType::sampleStandardDeviation),
                              std::move(parent), std::move(name), std::move(description)) {}

double SampleStandardDeviationToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::stdDeviationConsideringSampleVariance(valuesOnFirstElement(
      context, "SampleStandardDeviationToSingleElementExpression::interpret invalid element count",
      "SampleStdDeviationToSingleElementExpression::interpret invalid element count"));
}

std::string SampleStandardDeviationToSingleElementExpression::getPreVisualization() const {
  return joined("sampleStdDev(", ",", ")", false);
}

std::string SampleStandardDeviationToSingleElementExpression::getGeneralFormat() const {
  return joined("sampleStdDev(", ",", ")", true);
}
