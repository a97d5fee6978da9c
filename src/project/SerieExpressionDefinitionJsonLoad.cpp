#include "project/SerieExpressionDefinitionJsonLoad.h"

#include <optional>

#include "optimization/expression/SerieExpression.h"
#include "project/JsonLoadHelper.h"
#include "vocabulary/Vocabulary.h"

namespace {

SerieType serieTypeNamed(const nlohmann::json& value) {
  const auto name = JsonLoadHelper::get<std::string>(value);
  std::optional<SerieType> inputKind;
  for (const auto& row : Vocabulary::serieTypes().getRows()) {
    if (row.getName() != name) continue;
    if (Vocabulary::outputSerieTypes().count(row.getType()) > 0) return row.getType();
    if (!inputKind) inputKind = row.getType();
  }
  if (!inputKind) JsonLoadHelper::refuse(value, "the name of a series type");
  return *inputKind;
}

}  // namespace

void SerieExpressionDefinitionJsonLoad::loadSpecific(const json& content,
                                                     const ExpressionPtr& node) const {
  bool found = false;
  const json& type = JsonLoadHelper::findOptional(found, content, "serieType");
  as<SerieExpression>(node).setSerieOutputType(found ? serieTypeNamed(type)
                                                     : SerieType::releasedVolume);
}
