#include "project/OneFunctionAppliedToSeveralElementsExpressionDefinitionJsonSave.h"

#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "project/ExpressionSaveUtils.h"

JsonSaveBuilder::Members
OneFunctionAppliedToSeveralElementsExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<SummationToSeveralElementsWithSingleFunctionExpression>();
  return {child("expression", node.getExpression()),
          JsonSaveBuilder::makeJsonKeyValue(
              "ids", ExpressionSaveUtils::getSaveStringOfElementIDs(node.getElementIDs()))};
}
