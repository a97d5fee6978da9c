#include "project/SubExpressionDefinitionJsonLoad.h"

#include "optimization/expression/SubtractionExpression.h"

void SubExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                   const ExpressionPtr& node) const {
  as<SubtractionExpression>(node).setFirstExpression(child(content, "leftExpression", node));
  as<SubtractionExpression>(node).setSecondExpression(child(content, "rightExpression", node));
}
