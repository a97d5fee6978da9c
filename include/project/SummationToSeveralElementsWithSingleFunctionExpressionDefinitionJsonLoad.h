#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a summation of one child over elements: "expression", required, and "ids", optional.
class SummationToSeveralElementsWithSingleFunctionExpressionDefinitionJsonLoad
    : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
