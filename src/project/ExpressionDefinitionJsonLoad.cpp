#include "project/ExpressionDefinitionJsonLoad.h"

#include "optimization/expression/ExpressionFactory.h"
#include "project/ExpressionDefinitionLoadFactory.h"
#include "project/JsonLoadHelper.h"
#include "vocabulary/ExpressionTypeFactoryByDescriptionString.h"

using Helper = JsonLoadHelper;

namespace {

// The type stored as "<name>-<parameter kind>", or by its name alone for a node outside the
// families.
ExpressionType typeOf(const nlohmann::json& object) {
  const nlohmann::json& name = Helper::findRequired(object, "type");
  const auto type = Helper::get<std::string>(name);
  const auto kind = Helper::getRequired<std::string>(object, "parameterType");
  return Helper::known(name, "a type of formula node", [&] {
    try {
      return ExpressionTypeFactoryByDescriptionString::make(type + "-" + kind).getType();
    } catch (const std::invalid_argument&) {
      return ExpressionTypeFactoryByDescriptionString::make(type).getType();
    }
  });
}

int depthOf(ExpressionPtr node) {
  int depth = 0;
  for (; node; node = node->getParent()) ++depth;
  return depth;
}

}  // namespace

ExpressionPtr ExpressionDefinitionJsonLoad::loadExpression(
    const json& object, std::weak_ptr<ExpressionDefinition> parent) {
  Helper::asObject(object);
  if (depthOf(parent.lock()) >= maximumDepth) {
    Helper::refuse(object, "a formula nested at most " + std::to_string(maximumDepth) + " deep");
  }
  const ExpressionType type = typeOf(object);
  return ExpressionDefinitionLoadFactory::make(type)->load(object, type, std::move(parent));
}

ExpressionPtr ExpressionDefinitionJsonLoad::load(const json& object, ExpressionType type,
                                                 std::weak_ptr<ExpressionDefinition> parent) const {
  auto node = ExpressionFactory::make(
      type, std::move(parent), Helper::getRequired<std::string>(object, "name"),
      Helper::getRequired<std::string>(object, "nameChoicedByUser"));
  loadSpecific(Helper::asObject(Helper::findRequired(object, "specificContent")), node);
  return node;
}

ExpressionPtr ExpressionDefinitionJsonLoad::child(const json& content, const std::string& key,
                                                  const ExpressionPtr& node) {
  return loadExpression(Helper::findRequired(content, key), node);
}

std::vector<std::pair<ExpressionPtr, unsigned int>>
ExpressionDefinitionJsonLoad::childrenOnElements(const json& content, const ExpressionPtr& node) {
  std::vector<std::pair<ExpressionPtr, unsigned int>> children;
  for (const json& item :
       Helper::asArray(Helper::findRequired(content, "expressionsAndElements"))) {
    const auto id = Helper::getRequired<unsigned int>(item, "elementID");
    children.emplace_back(child(item, "expression", node), id);
  }
  return children;
}
