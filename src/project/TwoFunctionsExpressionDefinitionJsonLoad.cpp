#include "project/TwoFunctionsExpressionDefinitionJsonLoad.h"

#include "optimization/expression/TwoFunctionsExpression.h"
#include "project/JsonLoadHelper.h"

void TwoFunctionsExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                            const ExpressionPtr& node) const {
  const json& pairs =
      JsonLoadHelper::asArray(JsonLoadHelper::findRequired(content, "expressionsAndElements"));
  if (pairs.size() != 2) JsonLoadHelper::refuse(pairs, "two expressions with their elements");
  const auto children = childrenOnElements(content, node);
  auto& two = as<TwoFunctionsExpression>(node);
  two.setFirstExpression(children[0].first);
  two.setSecondExpression(children[1].first);
  two.changeIDInIndex(0, children[0].second);
  two.changeIDInIndex(1, children[1].second);
}
