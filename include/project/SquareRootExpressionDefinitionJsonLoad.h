#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a square root: "rootingExpression", all required.
class SquareRootExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
