#include "project/ExponentiationExpressionDefinitionJsonSave.h"

#include "optimization/expression/ExponentiationExpression.h"

JsonSaveBuilder::Members ExponentiationExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<ExponentiationExpression>();
  return {child("exponentExpression", node.getExponentExpression()),
          JsonSaveBuilder::makeJsonKeyValue("baseConstant", node.getBaseConstant())};
}
