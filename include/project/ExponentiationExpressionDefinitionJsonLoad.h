#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a whole base raised to a formula: "exponentExpression", "baseConstant", all required.
class ExponentiationExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
