#include "project/DivisionExpressionDefinitionJsonSave.h"

#include "optimization/expression/DivisionExpression.h"

JsonSaveBuilder::Members DivisionExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<DivisionExpression>();
  return {child("numerator", node.getNumeratorExpression()),
          child("denominator", node.getDenominatorExpression())};
}
