#include "project/DivisionExpressionDefinitionJsonLoad.h"

#include "optimization/expression/DivisionExpression.h"

void DivisionExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                        const ExpressionPtr& node) const {
  as<DivisionExpression>(node).setNumeratorExpression(child(content, "numerator", node));
  as<DivisionExpression>(node).setDenominatorExpression(child(content, "denominator", node));
}
