#include "project/MultiplicationExpressionDefinitionJsonSave.h"

#include "optimization/expression/MultiplicationExpression.h"

JsonSaveBuilder::Members MultiplicationExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<MultiplicationExpression>();
  return {child("leftExpression", node.getFirstExpression()),
          child("rightExpression", node.getSecondExpression())};
}
