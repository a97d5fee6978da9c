#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a change of sign: "expression".
class MultiplicationByMinunOneExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
