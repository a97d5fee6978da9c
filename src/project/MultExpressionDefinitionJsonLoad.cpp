#include "project/MultExpressionDefinitionJsonLoad.h"

#include "optimization/expression/MultiplicationExpression.h"

void MultExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                    const ExpressionPtr& node) const {
  as<MultiplicationExpression>(node).setFirstExpression(child(content, "leftExpression", node));
  as<MultiplicationExpression>(node).setSecondExpression(child(content, "rightExpression", node));
}
