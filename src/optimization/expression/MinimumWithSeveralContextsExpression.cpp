#include "optimization/expression/MinimumWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MinimumWithSeveralContextsExpression::MinimumWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::minimumWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double MinimumWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::min(valuesPerElement(
      context, "MinimumWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MinimumWithSeveralContextsExpression::getPreVisualization() const {
  return joined("min(", ",", ")", false);
}

std::string MinimumWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("min(", ",", ")", true);
}
