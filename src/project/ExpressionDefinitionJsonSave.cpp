#include "project/ExpressionDefinitionJsonSave.h"

#include "project/ExpressionDefinitionSaveFactory.h"
#include "vocabulary/ParameterElementsTypeFactory.h"

using B = JsonSaveBuilder;

ExpressionDefinitionJsonSave::ExpressionDefinitionJsonSave(ExpressionPtr expression)
    : expression(std::move(expression)) {}

std::string ExpressionDefinitionJsonSave::toJson() const {
  const ExpressionType type = expression->getExpressionType().getType();
  return B::makeObject(
      {B::makeJsonKeyValueString("type", expression->getExpressionType().getName()),
       B::makeJsonKeyValueString(
           "parameterType", ParameterElementsTypeFactory::makeExpressionTypeEnum(type).getName()),
       B::makeJsonKeyValueString("name", expression->getName()),
       B::makeJsonKeyValueString("nameChoicedByUser", expression->getDescription()),
       B::makeJsonKeyValue("specificContent", B::makeObject(toJsonSpecific()))});
}

std::string ExpressionDefinitionJsonSave::child(const std::string& key,
                                                const ExpressionPtr& child) {
  return B::makeJsonKeyValue(key, ExpressionDefinitionSaveFactory::make(child)->toJson());
}
