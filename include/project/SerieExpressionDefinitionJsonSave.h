#pragma once

#include "project/ExpressionDefinitionJsonSave.h"

// Writes a series of the element: "serieType", the display name of its result series.
class SerieExpressionDefinitionJsonSave : public ExpressionDefinitionJsonSave {
 public:
  using ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
