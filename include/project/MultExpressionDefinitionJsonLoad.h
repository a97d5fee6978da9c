#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a multiplication: "leftExpression", "rightExpression", all required.
class MultExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
