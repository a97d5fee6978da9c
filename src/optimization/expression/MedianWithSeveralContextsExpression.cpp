#include "optimization/expression/MedianWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MedianWithSeveralContextsExpression::MedianWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::medianWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double MedianWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::median(valuesPerElement(
      context, "MedianWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MedianWithSeveralContextsExpression::getPreVisualization() const {
  return joined("mediana(", ",", ")", false);
}

std::string MedianWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("mediana(", ",", ")", true);
}
