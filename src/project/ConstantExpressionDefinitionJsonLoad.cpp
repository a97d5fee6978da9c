#include "project/ConstantExpressionDefinitionJsonLoad.h"

#include "optimization/expression/ConstantExpression.h"
#include "project/JsonLoadHelper.h"

void ConstantExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                        const ExpressionPtr& node) const {
  as<ConstantExpression>(node).setValue(JsonLoadHelper::getRequired<double>(content, "constant"));
}
