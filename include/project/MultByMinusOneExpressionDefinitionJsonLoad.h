#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a change of sign: "expression", all required.
class MultByMinusOneExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
