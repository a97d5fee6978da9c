#include "project/ExponentiationExpressionDefinitionJsonLoad.h"

#include "optimization/expression/ExponentiationExpression.h"
#include "project/JsonLoadHelper.h"

void ExponentiationExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                              const ExpressionPtr& node) const {
  as<ExponentiationExpression>(node).setExponentExpression(
      child(content, "exponentExpression", node));
  as<ExponentiationExpression>(node).setBaseConstant(
      JsonLoadHelper::getRequired<int>(content, "baseConstant"));
}
