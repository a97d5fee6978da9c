#include "optimization/expression/MinimumToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MinimumToSingleElementExpression::MinimumToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::minimum),
          std::move(parent), std::move(name), std::move(description)) {}

double MinimumToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::min(valuesOnFirstElement(
      context, "Invalid count of elements",
      "MinimumWithSeveralContextsExpression::interpret invalid element count"));
}

std::string MinimumToSingleElementExpression::getPreVisualization() const {
  return joined("min(", ",", ")", false);
}

std::string MinimumToSingleElementExpression::getGeneralFormat() const {
  return joined("min(", ",", ")", true);
}
