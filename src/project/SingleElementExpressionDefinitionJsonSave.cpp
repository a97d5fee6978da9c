#include "project/SingleElementExpressionDefinitionJsonSave.h"

#include "optimization/expression/SingleElementExpression.h"
#include "project/ExpressionSaveUtils.h"

JsonSaveBuilder::Members SingleElementExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<SingleElementExpression>();
  return {JsonSaveBuilder::makeJsonKeyValue(
      "expressions", ExpressionSaveUtils::getSaveStringOfExpressionsToSingleElementExpression(
                         node.getVectorOfExpressionDefinitions()))};
}
