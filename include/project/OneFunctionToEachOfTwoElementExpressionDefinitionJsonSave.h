#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a node of two children on two elements: "expressionsAndElements", the first and the
// second child with their elements' ids.
class OneFunctionToEachOfTwoElementExpressionDefinitionJsonSave
    : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
