#include "optimization/expression/PopulationStandardDeviationWithSeveralContextsExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

PopulationStandardDeviationWithSeveralContextsExpression::
    PopulationStandardDeviationWithSeveralContextsExpression(
        std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : SeveralFunctionsExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(
              ExpressionType::populationStandardDeviationWithSeveralContexts),
          std::move(parent), std::move(name), std::move(description)) {}

double PopulationStandardDeviationWithSeveralContextsExpression::interpret(Context context) const {
  return VectorStatistics::stdDeviationConsideringPopulationVariance(valuesPerElement(
      context,
      "PopulationStandardDeviationWithSeveralContextsExpression::interpret invalid element count"));
}

std::string PopulationStandardDeviationWithSeveralContextsExpression::getPreVisualization() const {
  return joined("popStdDeviation(", ",", ")", false);
}

std::string PopulationStandardDeviationWithSeveralContextsExpression::getGeneralFormat() const {
  return joined("popStdDev(", ",", ")", true);
}
