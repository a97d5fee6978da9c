#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a subtraction: "leftExpression", "rightExpression", all required.
class SubExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
