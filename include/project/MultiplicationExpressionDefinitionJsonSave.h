#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a multiplication: "leftExpression", "rightExpression".
class MultiplicationExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
