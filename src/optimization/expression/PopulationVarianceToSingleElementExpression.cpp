#include "optimization/expression/PopulationVarianceToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

PopulationVarianceToSingleElementExpression::PopulationVarianceToSingleElementExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::populationVariance),
          std::move(parent), std::move(name), std::move(description)) {}

double PopulationVarianceToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::populationVariance(valuesOnFirstElement(
      context, "PopulationVarianceToSingleElementExpression::interpret invalid element count",
      "PopulationVarianceToSingleElementExpression::interpret invalid element count"));
}

std::string PopulationVarianceToSingleElementExpression::getPreVisualization() const {
  return joined("popVar(", ",", ")", false);
}

std::string PopulationVarianceToSingleElementExpression::getGeneralFormat() const {
  return joined("popVar(", ",", ")", true);
}
