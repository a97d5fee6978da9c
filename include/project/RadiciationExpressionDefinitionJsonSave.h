#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a root of a whole index: "rootingExpression", "index".
class RadiciationExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
