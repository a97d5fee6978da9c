#include "project/JsonLoadScenario.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "project/JsonLoadElementFactory.h"
#include "project/JsonLoadExecutionMethodFactory.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadInterval.h"
#include "vocabulary/Vocabulary.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

std::shared_ptr<Scenario> JsonLoadScenario::load(const json& object) {
  oldTrafficLimit = false;
  const json& intervalObject = Helper::findRequired(object, "interval");
  const Interval interval =
      Helper::at(intervalObject, [&] { return JsonLoadInterval::load(intervalObject); });
  const json& methodType = Helper::findRequired(object, "ExecutionMethodType");
  const auto methodLoader = Helper::known(
      methodType, "an execution method this program reads",
      [&] { return JsonLoadExecutionMethodFactory::make(Helper::get<std::string>(methodType)); });
  checkMethodFitsKind(object, methodType);
  const json& methodObject = Helper::asObject(Helper::findRequired(object, "ExecutionMethod"));
  const std::shared_ptr<ExecutionMethod> method =
      Helper::at(methodObject, [&] { return methodLoader->load(methodObject, interval); });
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

void JsonLoadScenario::checkMethodFitsKind(const json& object, const json& methodType) {
  const auto* kind = Vocabulary::scenarioTypes().findByName(
      Helper::get<std::string>(Helper::findRequired(object, "type")));
  const auto* method =
      Vocabulary::executionTypes().findByName(Helper::get<std::string>(methodType));
  if (!kind || !method) return;
  const auto& fitting = Vocabulary::executionTypesOf(kind->getType());
  if (std::find(fitting.begin(), fitting.end(), method->getType()) != fitting.end()) return;
  std::string names;
  for (ExecutionType type : fitting) {
    names += (names.empty() ? "" : " or ") + ("\"" + Vocabulary::of(type).getName() + "\"");
  }
  Helper::refuse(methodType, "the method of a \"" + kind->getName() + "\" scenario: " + names);
}

void JsonLoadScenario::loadElements(const json& object, const std::shared_ptr<Scenario>& scenario) {
  bool found = false;
  const json& nodes = Helper::findOptional(found, object, "nodes");
  if (!found) return;
  std::vector<std::shared_ptr<JsonLoadNode>> nodeLoaders;
  loadNodes(nodes, scenario, nodeLoaders);
  loadLinks(object, scenario);
  for (const auto& loader : nodeLoaders) loader->loadAfterLinks();
}

void JsonLoadScenario::loadNodes(const json& nodes, const std::shared_ptr<Scenario>& scenario,
                                 std::vector<std::shared_ptr<JsonLoadNode>>& loaders) {
  // A node item without its type is refused rather than skipped: a network with a node missing
  // would be checked and run as another network.
  for (const json& item : Helper::asArray(nodes)) {
    const json& element = Helper::findRequired(Helper::findRequired(item, "node"), "element");
    const json& type = Helper::findRequired(element, "elementType");
    loaders.push_back(Helper::known(type, "a node type (element type of a node)", [&] {
      return JsonLoadElementFactory::makeNode(Helper::get<std::string>(type), scenario);
    }));
    Helper::at(item, [&] { loaders.back()->load(item); });
  }
}

void JsonLoadScenario::loadLinks(const json& object, const std::shared_ptr<Scenario>& scenario) {
  bool found = false;
  const json& links = Helper::findOptional(found, object, "links");
  if (!found) return;
  for (const json& item : Helper::asArray(links)) {
    const json& type = Helper::findRequired(Helper::findRequired(item, "element"), "elementType");
    const auto loader = Helper::known(type, "a link type (element type of a link)", [&] {
      return JsonLoadElementFactory::makeLink(Helper::get<std::string>(type), scenario);
    });
    Helper::at(item, [&] { loader->load(item); });
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
