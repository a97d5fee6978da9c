#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a division: "numerator", "denominator", all required.
class DivisionExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
