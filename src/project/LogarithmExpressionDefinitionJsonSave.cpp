#include "project/LogarithmExpressionDefinitionJsonSave.h"

#include "optimization/expression/LogarithmExpression.h"

JsonSaveBuilder::Members LogarithmExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<LogarithmExpression>();
  return {child("baseExpression", node.getBaseExpression()),
          child("logarithmingExpression", node.getLogarithmingExpression())};
}
