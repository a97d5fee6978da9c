#include "optimization/ExpressionDefinitionConfiguration.h"

#include <stdexcept>

ExpressionDefinitionConfiguration::ExpressionDefinitionConfiguration(ExpressionPtr rootExpression,
                                                                     bool enabled,
                                                                     bool minimization,
                                                                     Enum<Unit> unit)
    : rootExpression(std::move(rootExpression)),
      enabled(enabled),
      minimization(minimization),
      unit(std::move(unit)) {
  if (!this->rootExpression) {
    throw std::invalid_argument("ExpressionDefinitionConfiguration: the formula is missing");
  }
}
