#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a division: "numerator", "denominator".
class DivisionExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
