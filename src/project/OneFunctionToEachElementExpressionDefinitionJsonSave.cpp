#include "project/OneFunctionToEachElementExpressionDefinitionJsonSave.h"

#include "optimization/expression/SeveralFunctionsExpression.h"
#include "project/ExpressionSaveUtils.h"

JsonSaveBuilder::Members OneFunctionToEachElementExpressionDefinitionJsonSave::toJsonSpecific()
    const {
  const auto& node = getExpression<SeveralFunctionsExpression>();
  return {JsonSaveBuilder::makeJsonKeyValue(
      "expressionsAndElements",
      ExpressionSaveUtils::getSaveStringOfOneExpressionToEachElement(
          node.getVectorOfExpressionDefinitions(), node.getElementIDs()))};
}
