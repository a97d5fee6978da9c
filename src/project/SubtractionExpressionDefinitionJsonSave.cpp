#include "project/SubtractionExpressionDefinitionJsonSave.h"

#include "optimization/expression/SubtractionExpression.h"

JsonSaveBuilder::Members SubtractionExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<SubtractionExpression>();
  return {child("leftExpression", node.getFirstExpression()),
          child("rightExpression", node.getSecondExpression())};
}
