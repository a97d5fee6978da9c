#include "core/ProjectStructure.h"

#include <algorithm>
#include <stdexcept>

#include "core/Scenario.h"
#include "vocabulary/EnumFactories.h"

namespace {

const ElementStructure& findElement(const SceneryStructure& scenery, unsigned int id) {
  auto it = std::find_if(scenery.elements.begin(), scenery.elements.end(),
                         [id](const ElementStructure& element) { return element.id == id; });
  if (it == scenery.elements.end()) {
    throw std::invalid_argument("ProjectStructure::select(): invalid elementId");
  }
  return *it;
}

}  // namespace

SceneryStructure SceneryStructure::describe(const Scenario& scenario) {
  // Scenario kinds and indicators share their numbers.
  SceneryStructure result{EnumSceneryIndiatorFactoryByType::make(
                              static_cast<SceneryIndicator>(scenario.getScenarioType().getId())),
                          scenario.getName(),
                          {}};
  for (const auto& element : scenario.getSortedElements()) {
    result.elements.push_back({element->getId(), element->getName(), element->getElementType()});
  }
  return result;
}

ProjectStructure ProjectStructure::describe(
    const std::string& url, const std::map<unsigned int, std::shared_ptr<Scenario>>& sceneries) {
  ProjectStructure result{url, {}};
  for (const auto& entry : sceneries) {
    result.sceneries.push_back(SceneryStructure::describe(*entry.second));
  }
  return result;
}

std::vector<SceneryStructure> ProjectStructure::select(
    const std::vector<ScenerySelectedStructure>& picks) const {
  std::vector<SceneryStructure> result;
  for (const auto& pick : picks) {
    if (pick.sceneryPosition >= sceneries.size()) {
      throw std::out_of_range("ProjectStructure::select(): invalid scenery position");
    }
    const SceneryStructure& scenery = sceneries[pick.sceneryPosition];
    SceneryStructure picked{scenery.indicator, scenery.name, {}};
    for (unsigned int id : pick.elementIds) picked.elements.push_back(findElement(scenery, id));
    result.push_back(std::move(picked));
  }
  return result;
}
