#include "project/SummationToSeveralElementsWithSingleFunctionExpressionDefinitionJsonLoad.h"

#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "project/JsonLoadHelper.h"

void SummationToSeveralElementsWithSingleFunctionExpressionDefinitionJsonLoad::loadSpecific(
    const json& content, const ExpressionPtr& node) const {
  auto& summation = as<SummationToSeveralElementsWithSingleFunctionExpression>(node);
  summation.setExpression(child(content, "expression", node));
  JsonLoadHelper::applyOptional<std::vector<unsigned int>>(
      content, "ids", [&](auto ids) { summation.setVectorOfElementIDs(std::move(ids)); });
}
