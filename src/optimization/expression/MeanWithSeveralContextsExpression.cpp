#include "optimization/expression/MeanWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MeanWithSeveralContextsExpression::MeanWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::meanWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double MeanWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::average(valuesPerElement(
      context, "MeanWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MeanWithSeveralContextsExpression::getPreVisualization() const {
  return joined("média(", ",", ")", false);
}

std::string MeanWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("média(", ",", ")", true);
}
