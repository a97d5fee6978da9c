#include "project/PotentiationExpressionDefinitionJsonSave.h"

#include "optimization/expression/PotentiationExpression.h"

JsonSaveBuilder::Members PotentiationExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<PotentiationExpression>();
  return {child("expression", node.getBaseExpression()),
          JsonSaveBuilder::makeJsonKeyValue("exponent", node.getExponent())};
}
