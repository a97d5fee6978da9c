#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a constant: "constant", all required.
class ConstantExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
