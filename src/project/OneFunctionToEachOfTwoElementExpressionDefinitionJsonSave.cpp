#include "project/OneFunctionToEachOfTwoElementExpressionDefinitionJsonSave.h"

#include "optimization/expression/TwoFunctionsExpression.h"
#include "project/ExpressionSaveUtils.h"

JsonSaveBuilder::Members OneFunctionToEachOfTwoElementExpressionDefinitionJsonSave::toJsonSpecific()
    const {
  const auto& node = getExpression<TwoFunctionsExpression>();
  const auto ids = node.getElementIDs();
  return {JsonSaveBuilder::makeJsonKeyValue(
      "expressionsAndElements",
      ExpressionSaveUtils::getSaveStringOfOneExpressionToEachOfTwoElement(
          node.getFirstExpression(), node.getSecondExpression(), ids[0], ids[1]))};
}
