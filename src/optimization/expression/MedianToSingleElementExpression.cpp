#include "optimization/expression/MedianToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

MedianToSingleElementExpression::MedianToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::median),
          std::move(parent), std::move(name), std::move(description)) {}

double MedianToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::median(
      valuesOnFirstElement(context, "MedianToSingleElementExpression::interpret invalid parameter",
                           "MedianToSingleElementExpression::interpret invalid element count"));
}

std::string MedianToSingleElementExpression::getPreVisualization() const {
  return joined("mediana(", ",", ")", false);
}

std::string MedianToSingleElementExpression::getGeneralFormat() const {
  return joined("mediana(", ",", ")", true);
}
