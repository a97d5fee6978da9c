#include "optimization/expression/MeanToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MeanToSingleElementExpression::MeanToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::mean),
          std::move(parent), std::move(name), std::move(description)) {}

double MeanToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::average(valuesOnFirstElement(
      context, "MeanToSingleElementExpression::interpret invalid element count",
      "MeanToSingleElementExpression::interpret invalid element count"));
}

std::string MeanToSingleElementExpression::getPreVisualization() const {
  return joined("média(", ",", ")", false);
}

std::string MeanToSingleElementExpression::getGeneralFormat() const {
  return joined("média(", ",", ")", true);
}
