#include "project/ExpressionSaveUtils.h"

#include "project/ExpressionDefinitionSaveFactory.h"

using B = JsonSaveBuilder;

namespace {

std::string objectOf(const ExpressionPtr& expression) {
  return ExpressionDefinitionSaveFactory::make(expression)->toJson();
}

std::string childOnElement(const ExpressionPtr& expression, unsigned int id) {
  return B::makeObject({B::makeJsonKeyValue("elementID", id),
                        B::makeJsonKeyValue("expression", objectOf(expression))});
}

}  // namespace

std::string ExpressionSaveUtils::getSaveStringOfExpressionsToSingleElementExpression(
    const std::vector<ExpressionPtr>& expressions) {
  return B::makeArray(expressions, objectOf);
}

std::string ExpressionSaveUtils::getSaveStringOfOneExpressionToEachElement(
    const std::vector<ExpressionPtr>& expressions, const std::vector<unsigned int>& ids) {
  std::vector<std::string> items;
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    items.push_back(childOnElement(expressions[i], i < ids.size() ? ids[i] : 0));
  }
  return B::makeArray(items, [](const std::string& item) { return item; });
}

std::string ExpressionSaveUtils::getSaveStringOfOneExpressionToEachOfTwoElement(
    const ExpressionPtr& first, const ExpressionPtr& second, unsigned int firstID,
    unsigned int secondID) {
  return "[" + childOnElement(first, firstID) + "," + childOnElement(second, secondID) + "]";
}

std::string ExpressionSaveUtils::getSaveStringOfElementIDs(const std::vector<unsigned int>& ids) {
  return B::makeVectorOfIntegerValues(ids);
}
