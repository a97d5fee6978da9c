#include "optimization/expression/PopulationVarianceWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

PopulationVarianceWithSeveralContextsExpression::PopulationVarianceWithSeveralContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                     ExpressionType::populationVarianceWithSeveralContexts),
                                 std::move(parent), std::move(name), std::move(description)) {}

double PopulationVarianceWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::populationVariance(valuesPerElement(
      context, "PopulationVarianceWithSeveralContextsExpression::interpret invalid element count"));
}

std::string PopulationVarianceWithSeveralContextsExpression::getPreVisualization() const {
  return joined("popVar(", ",", ")", false);
}

std::string PopulationVarianceWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("popVar(", ",", ")", true);
}
