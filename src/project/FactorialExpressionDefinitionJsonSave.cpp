#include "project/FactorialExpressionDefinitionJsonSave.h"

#include "optimization/expression/FactorialExpression.h"

JsonSaveBuilder::Members FactorialExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<FactorialExpression>();
  return {child("rootingExpression", node.getRootingExpression())};
}
