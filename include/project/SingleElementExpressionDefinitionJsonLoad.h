#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads the sum or a statistic of children read on one element: "expressions", required.
class SingleElementExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
