#include "optimization/expression/PopulationStandardDeviationToSingleElementExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

PopulationStandardDeviationToSingleElementExpression::
    PopulationStandardDeviationToSingleElementExpression(std::weak_ptr<ExpressionDefinition> parent,
                                                         std::string name, std::string description)
    : SingleElementExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                  ExpressionType::populationStandardDeviation),
                              std::move(parent), std::move(name), std::move(description)) {}

double PopulationStandardDeviationToSingleElementExpression::interpret(Context context) const {
  return VectorStatistics::stdDeviationConsideringPopulationVariance(valuesOnFirstElement(
      context,
      "PopulationStandardDeviationToSingleElementExpression::interpret invalid element count",
      "PopulationStandardDeviationToSingleElementExpression::interpret invalid element count"));
}

std::string PopulationStandardDeviationToSingleElementExpression::getPreVisualization() const {
  return joined("popStdDeviation(", ",", ")", false);
}

std::string PopulationStandardDeviationToSingleElementExpression::getGeneralFormat() const {
  return joined("popStdDev(", ",", ")", true);
}
