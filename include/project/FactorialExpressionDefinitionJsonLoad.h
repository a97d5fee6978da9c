#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a factorial (its operand under the key of a root, as the format has it):
// "rootingExpression", all required.
class FactorialExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
