#include "project/JsonSaveScenario.h"

#include "core/ElementsFilter.h"
#include "core/ExecutionMethod.h"
#include "project/JsonSaveElementFactory.h"
#include "project/JsonSaveExecutionMethodFactory.h"
#include "project/JsonSaveInterval.h"

using B = JsonSaveBuilder;

JsonSaveScenario::JsonSaveScenario(std::shared_ptr<Scenario> scenario)
    : scenario(std::move(scenario)) {}

std::string JsonSaveScenario::toJson() const {
  if (!scenario) return "";
  const auto& method = scenario->getExecutionMethod();
  const auto& elements = scenario->getElements();
  B::Members members = {
      B::makeJsonKeyValue("interval", JsonSaveInterval::toJson(scenario->getInterval())),
      B::makeJsonKeyValueString("name", scenario->getName()),
      B::makeJsonKeyValueString("type", scenario->getScenarioType().getName()),
      B::makeJsonKeyValueString("ExecutionMethodType", method->getExecutionType().getName()),
      B::makeJsonKeyValue("ExecutionMethod",
                          JsonSaveExecutionMethodFactory::make(method)->toJson()),
      B::makeJsonKeyValue("id", scenario->getId()),
      B::makeJsonKeyValue("databaseId", scenario->getDatabaseId()),
      toJsonElements("nodes", ElementsFilter::filterByNodesElements(elements)),
      toJsonElements("links", ElementsFilter::filterByLinksElements(elements)),
      toJsonShapes()};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  members.push_back(toJsonSavedSelectionElements());
  return B::makeObject(members);
}

std::string JsonSaveScenario::toJsonElements(
    const std::string& key, const std::vector<std::shared_ptr<Element>>& elements) const {
  const auto item = [this](const std::shared_ptr<Element>& element) {
    return JsonSaveElementFactory::make(element, scenario)->toJson();
  };
  return B::makeJsonKeyValue(key, B::makeArray(elements, item));
}

std::string JsonSaveScenario::toJsonShapes() const {
  const auto shape = [](const Scenario::PathInfo& path) {
    return B::makeObject({B::makeJsonKeyValueString("fullpath", path.fullpath),
                          B::makeJsonKeyValueString("filename", path.filename)});
  };
  return B::makeJsonKeyValue("shapes", B::makeArray(scenario->getVectorOfPathInfo(), shape));
}

std::string JsonSaveScenario::toJsonSavedSelectionElements() const {
  const auto selection = [](const std::pair<const std::string, std::vector<int>>& entry) {
    return B::makeObject({B::makeJsonKeyValueString("label", entry.first),
                          B::makeJsonKeyValue("ids", B::makeVectorOfIntegerValues(entry.second))});
  };
  return B::makeJsonKeyValue("savedSelection",
                             B::makeArray(scenario->getLabelElementsSelects(), selection));
}
