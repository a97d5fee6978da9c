#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a factorial (its operand under the key of a root, as the format has it):
// "rootingExpression".
class FactorialExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
