#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a summation of one child over elements: "expression", the child, and "ids", the
// elements'.
class OneFunctionAppliedToSeveralElementsExpressionDefinitionJsonSave
    : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
