#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a subtraction: "leftExpression", "rightExpression".
class SubtractionExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
