#pragma once

#include "project/ExpressionDefinitionJsonLoad.h"

// Reads a node with one child per element: "expressionsAndElements", required.
class SeveralFunctionsExpressionDefinitionJsonLoad : public ExpressionDefinitionJsonLoad {
 protected:
  void loadSpecific(const json& content, const ExpressionPtr& node) const override;
};
