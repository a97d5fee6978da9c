#include "project/MultByMinusOneExpressionDefinitionJsonLoad.h"

#include "optimization/expression/MultiplicationByMinusOneExpression.h"

void MultByMinusOneExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                              const ExpressionPtr& node) const {
  as<MultiplicationByMinusOneExpression>(node).setExpressionToBeMultiplied(
      child(content, "expression", node));
}
