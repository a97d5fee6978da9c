#include "project/SeveralFunctionsExpressionDefinitionJsonLoad.h"

#include "optimization/expression/SeveralFunctionsExpression.h"

void SeveralFunctionsExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                                const ExpressionPtr& node) const {
  for (auto& [child, id] : childrenOnElements(content, node)) {
    as<SeveralFunctionsExpression>(node).addExpression(child, id);
  }
}
