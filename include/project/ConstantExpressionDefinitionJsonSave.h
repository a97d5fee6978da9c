#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a constant: "constant".
class ConstantExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
