#include "project/PotentiationExpressionDefinitionJsonLoad.h"

#include "optimization/expression/PotentiationExpression.h"
#include "project/JsonLoadHelper.h"

void PotentiationExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                            const ExpressionPtr& node) const {
  as<PotentiationExpression>(node).setBaseExpression(child(content, "expression", node));
  as<PotentiationExpression>(node).setExponent(
      JsonLoadHelper::getRequired<int>(content, "exponent"));
}
