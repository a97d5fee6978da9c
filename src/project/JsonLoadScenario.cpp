#include "project/JsonLoadScenario.h"

#include <map>
#include <vector>

#include "project/JsonLoadElementFactory.h"
#include "project/JsonLoadExecutionMethodFactory.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadInterval.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

// The type of a node item, item.node.element.elementType, or null when a level is missing.
const json* nodeTypeOf(const json& item) {
  bool found = false;
  const json* level = &item;
  for (const char* key : {"node", "element", "elementType"}) {
    level = &Helper::findOptional(found, *level, key);
    if (!found) return nullptr;
  }
  return level;
}

}  // namespace

std::shared_ptr<Scenario> JsonLoadScenario::load(const json& object) {
  oldTrafficLimit = false;
  const Interval interval = JsonLoadInterval::load(Helper::findRequired(object, "interval"));
  const auto methodType = Helper::getRequired<std::string>(object, "ExecutionMethodType");
  const std::shared_ptr<ExecutionMethod> method =
      JsonLoadExecutionMethodFactory::make(methodType)
          ->load(Helper::findRequired(object, "ExecutionMethod"), interval);
  const auto name = Helper::getRequired<std::string>(object, "name");
  std::shared_ptr<Scenario> scenario =
      getInstance(method, Helper::getRequired<unsigned int>(object, "id"), interval, name);
  scenario->setDatabaseId(Helper::getRequired<unsigned int>(object, "databaseId"));
  loadShapes(object, *scenario);
  loadElements(object, scenario);
  loadSavedSelection(object, *scenario);
  // Elements' series take the period once more, now that all of them exist.
  scenario->setInterval(interval);
  specificLoad(object, *scenario);
  scenario->resolveRuleReferences();
  return scenario;
}

void JsonLoadScenario::loadElements(const json& object, const std::shared_ptr<Scenario>& scenario) {
  bool found = false;
  const json& nodes = Helper::findOptional(found, object, "nodes");
  if (!found) return;
  std::vector<std::shared_ptr<JsonLoadNode>> nodeLoaders;
  if (loadNodes(nodes, scenario, nodeLoaders)) loadLinks(object, scenario);
  for (const auto& loader : nodeLoaders) loader->loadAfterLinks();
}

bool JsonLoadScenario::loadNodes(const json& nodes, const std::shared_ptr<Scenario>& scenario,
                                 std::vector<std::shared_ptr<JsonLoadNode>>& loaders) {
  bool everyNodeRead = true;
  for (const json& item : Helper::asArray(nodes)) {
    const json* type = nodeTypeOf(item);
    if (type == nullptr) {
      everyNodeRead = false;
      continue;
    }
    loaders.push_back(JsonLoadElementFactory::makeNode(Helper::get<std::string>(*type), scenario));
    loaders.back()->load(item);
  }
  return everyNodeRead;
}

void JsonLoadScenario::loadLinks(const json& object, const std::shared_ptr<Scenario>& scenario) {
  bool found = false;
  const json& links = Helper::findOptional(found, object, "links");
  if (!found) return;
  for (const json& item : Helper::asArray(links)) {
    const auto type =
        Helper::getRequired<std::string>(Helper::findRequired(item, "element"), "elementType");
    const auto loader = JsonLoadElementFactory::makeLink(type, scenario);
    loader->load(item);
    oldTrafficLimit = oldTrafficLimit || loader->usedOldTrafficLimit();
  }
}

void JsonLoadScenario::loadShapes(const json& object, Scenario& scenario) {
  bool found = false;
  const json& shapes = Helper::findOptional(found, object, "shapes");
  if (!found) return;
  for (const json& shape : Helper::asArray(shapes)) {
    scenario.addPathInfo(Helper::getRequired<std::string>(shape, "filename"),
                         Helper::getRequired<std::string>(shape, "fullpath"));
  }
}

void JsonLoadScenario::loadSavedSelection(const json& object, Scenario& scenario) {
  bool found = false;
  const json& selections = Helper::findOptional(found, object, "savedSelection");
  if (!found) return;
  std::map<std::string, std::vector<int>> labelled;
  for (const json& selection : Helper::asArray(selections)) {
    const auto label = Helper::findOptional<std::string>(found, selection, "label");
    if (found) {
      labelled[label] = Helper::get<std::vector<int>>(Helper::findRequired(selection, "ids"));
    }
  }
  scenario.setLabelElementsSelects(labelled);
}
