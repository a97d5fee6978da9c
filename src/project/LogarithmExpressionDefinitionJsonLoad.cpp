#include "project/LogarithmExpressionDefinitionJsonLoad.h"

#include "optimization/expression/LogarithmExpression.h"

void LogarithmExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                         const ExpressionPtr& node) const {
  as<LogarithmExpression>(node).setBaseExpression(child(content, "baseExpression", node));
  as<LogarithmExpression>(node).setLogarithmingExpression(
      child(content, "logarithmingExpression", node));
}
