#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a square root: "rootingExpression".
class SquareRootExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
