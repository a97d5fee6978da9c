#include "project/SquareRootExpressionDefinitionJsonLoad.h"

#include "optimization/expression/SquareRootExpression.h"

void SquareRootExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                          const ExpressionPtr& node) const {
  as<SquareRootExpression>(node).setRootingExpression(child(content, "rootingExpression", node));
}
