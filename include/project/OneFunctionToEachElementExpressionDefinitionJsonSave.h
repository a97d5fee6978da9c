#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a node with one child per element: "expressionsAndElements", each child with its
// element's id.
class OneFunctionToEachElementExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
