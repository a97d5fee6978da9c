#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a logarithm: "baseExpression", "logarithmingExpression", all required.
class LogarithmExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
