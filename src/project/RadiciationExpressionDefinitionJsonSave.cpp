#include "project/RadiciationExpressionDefinitionJsonSave.h"

#include "optimization/expression/RadiciationExpression.h"

JsonSaveBuilder::Members RadiciationExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<RadiciationExpression>();
  return {child("rootingExpression", node.getRootingExpression()),
          JsonSaveBuilder::makeJsonKeyValue("index", node.getIndex())};
}
