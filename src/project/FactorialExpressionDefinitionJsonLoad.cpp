#include "project/FactorialExpressionDefinitionJsonLoad.h"

#include "optimization/expression/FactorialExpression.h"

void FactorialExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                         const ExpressionPtr& node) const {
  as<FactorialExpression>(node).setRootingExpression(child(content, "rootingExpression", node));
}
