#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a whole base raised to a formula: "exponentExpression", "baseConstant".
class ExponentiationExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
