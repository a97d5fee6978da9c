#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a power of a whole exponent: "expression", "exponent", all required.
class PotentiationExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
