#include "optimization/expression/MaximumWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MaximumWithSeveralContextsExpression::MaximumWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::maximumWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double MaximumWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::max(valuesPerElement(
      context, "MaximumWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MaximumWithSeveralContextsExpression::getPreVisualization() const {
  return joined("max(", ",", ")", false);
}

std::string MaximumWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("max(", ",", ")", true);
}
