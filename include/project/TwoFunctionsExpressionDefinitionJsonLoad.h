#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a node of two children on two elements: "expressionsAndElements", required, with exactly
// the first and the second child.
class TwoFunctionsExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
