#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a logarithm: "baseExpression", "logarithmingExpression".
class LogarithmExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
