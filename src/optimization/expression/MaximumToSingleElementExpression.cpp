#include "optimization/expression/MaximumToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MaximumToSingleElementExpression::MaximumToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::maximum),
          std::move(parent), std::move(name), std::move(description)) {}

double MaximumToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::max(valuesOnFirstElement(
      context, "MaximumToSingleElementExpression::interpret invalid element count",
      "MaximumWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MaximumToSingleElementExpression::getPreVisualization() const {
  return joined("max(", ",", ")", false);
}

std::string MaximumToSingleElementExpression::getGeneralFormat() const {
  return joined("max(", ",", ")", true);
}
