#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a power of a whole exponent: "expression", "exponent".
class PotentiationExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
