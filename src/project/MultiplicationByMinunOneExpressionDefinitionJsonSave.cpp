#include "project/MultiplicationByMinunOneExpressionDefinitionJsonSave.h"

#include "optimization/expression/MultiplicationByMinusOneExpression.h"

JsonSaveBuilder::Members MultiplicationByMinunOneExpressionDefinitionJsonSave::toJsonSpecific()
    const {
  const auto& node = getExpression<MultiplicationByMinusOneExpression>();
  return {child("expression", node.getExpressionToBeMultiplied())};
}
