#include "project/RadiciationExpressionDefinitionJsonLoad.h"

#include "optimization/expression/RadiciationExpression.h"
#include "project/JsonLoadHelper.h"

void RadiciationExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                           const ExpressionPtr& node) const {
  as<RadiciationExpression>(node).setRootingExpression(child(content, "rootingExpression", node));
  as<RadiciationExpression>(node).setIndex(JsonLoadHelper::getRequired<int>(content, "index"));
}
