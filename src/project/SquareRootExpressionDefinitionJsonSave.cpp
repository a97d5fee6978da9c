#include "project/SquareRootExpressionDefinitionJsonSave.h"

#include "optimization/expression/SquareRootExpression.h"

JsonSaveBuilder::Members SquareRootExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<SquareRootExpression>();
  return {child("rootingExpression", node.getRootingExpression())};
}
