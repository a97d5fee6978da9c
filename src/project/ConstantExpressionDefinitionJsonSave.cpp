#include "project/ConstantExpressionDefinitionJsonSave.h"

#include "optimization/expression/ConstantExpression.h"

JsonSaveBuilder::Members ConstantExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<ConstantExpression>();
  return {JsonSaveBuilder::makeJsonKeyValue("constant", node.getValue())};
}
