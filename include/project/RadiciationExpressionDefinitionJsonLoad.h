#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a root of a whole index: "rootingExpression", "index", all required.
class RadiciationExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
