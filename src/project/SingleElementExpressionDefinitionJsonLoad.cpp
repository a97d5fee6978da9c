#include "project/SingleElementExpressionDefinitionJsonLoad.h"

#include "optimization/expression/SingleElementExpression.h"
#include "project/JsonLoadHelper.h"

void SingleElementExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                             const ExpressionPtr& node) const {
  const json& expressions = JsonLoadHelper::findRequired(content, "expressions");
  for (const json& item : JsonLoadHelper::asArray(expressions)) {
    as<SingleElementExpression>(node).addExpression(loadExpression(item, node));
  }
}
