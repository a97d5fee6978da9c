#include "project/SerieExpressionDefinitionJsonSave.h"

#include "optimization/expression/SerieExpression.h"
#include "vocabulary/Vocabulary.h"

JsonSaveBuilder::Members SerieExpressionDefinitionJsonSave::toJsonSpecific() const {
  const auto& node = getExpression<SerieExpression>();
  return {JsonSaveBuilder::makeJsonKeyValueString("serieType",
                                                  Vocabulary::of(node.getSerieType()).getName())};
}
