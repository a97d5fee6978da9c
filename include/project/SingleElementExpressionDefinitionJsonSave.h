#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes the sum or a statistic of children read on one element: "expressions", their array.
class SingleElementExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
