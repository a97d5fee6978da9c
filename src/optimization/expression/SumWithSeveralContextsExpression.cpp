#include "optimization/expression/SumWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SumWithSeveralContextsExpression::SumWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::sumWithSeveralContexts),
          std::move(parent), std::move(name), std::move(description)) {}

double SumWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::sum(valuesPerElement(
      context, "SumWithSeveralContextsExpression::interpret invalid element count"));
}

std::string SumWithSeveralContextsExpression::getPreVisualization() const {
  return joined("({", "}+{", "})", false);
}

std::string SumWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("({", "}+{", "})", true);
}
