#include "vocabulary/ExpressionTypeFactoryByDescriptionString.h"

#include <map>
#include <stdexcept>

#include "vocabulary/ParameterElementsTypeFactory.h"

namespace {

const std::map<std::string, const Enum<ExpressionType>*>& typesByDescription() {
  static const std::map<std::string, const Enum<ExpressionType>*> types = [] {
    std::map<std::string, const Enum<ExpressionType>*> byDescription;
    for (const auto& row : EnumExpressionTypeFactory::expressionTypes().getRows()) {
      byDescription.emplace(ExpressionTypeFactoryByDescriptionString::descriptionOf(row.getType()),
                            &row);
    }
    return byDescription;
  }();
  return types;
}

}  // namespace

const Enum<ExpressionType>& ExpressionTypeFactoryByDescriptionString::make(
    const std::string& description) {
  const auto found = typesByDescription().find(description);
  if (found == typesByDescription().end()) {
    throw std::invalid_argument(
        "ExpressionTypeFactoryByDescriptionString::make(): invalid descriptionType");
  }
  return *found->second;
}

std::string ExpressionTypeFactoryByDescriptionString::descriptionOf(ExpressionType type) {
  const std::string& name = EnumExpressionTypeFactory::makeExpressionTypeEnum(type).getName();
  const std::string& kind = ParameterElementsTypeFactory::makeExpressionTypeEnum(type).getName();
  return kind.empty() ? name : name + "-" + kind;
}
