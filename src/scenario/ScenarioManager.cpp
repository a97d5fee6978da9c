#include "scenario/ScenarioManager.h"

#include <algorithm>
#include <stdexcept>

ScenarioManager& ScenarioManager::getInstance() {
  static ScenarioManager instance;
  return instance;
}

const std::shared_ptr<Scenario>& ScenarioManager::mappingScenery(unsigned int index) const {
  return sceneries.at(index);
}

std::shared_ptr<Scenario> ScenarioManager::mappingSceneryByDatabaseID(
    unsigned int databaseId) const {
  for (const auto& entry : sceneries) {
    if (entry.second->getDatabaseId() == databaseId) return entry.second;
  }
  return nullptr;
}

std::shared_ptr<Scenario> ScenarioManager::getSceneryById(unsigned int id) const {
  for (const auto& entry : sceneries) {
    if (entry.second->getId() == id) return entry.second;
  }
  return nullptr;
}

void ScenarioManager::setCurrentScenario(unsigned int index) {
  currentScenario = sceneries.at(index);
}

std::map<unsigned int, Interval> ScenarioManager::getIntervals() const {
  std::map<unsigned int, Interval> intervals;
  for (const auto& entry : sceneries) intervals.emplace(entry.first, entry.second->getInterval());
  return intervals;
}

unsigned int ScenarioManager::getIndexByScenId(unsigned int id) const {
  for (const auto& entry : sceneries) {
    if (entry.second->getId() == id) return entry.first;
  }
  throw std::invalid_argument("ScenarioManager::getIndexByScenId: invalid operation");
}

unsigned int ScenarioManager::getIndexOfCurrentScen() const {
  if (currentScenario) {
    for (const auto& entry : sceneries) {
      if (entry.second == currentScenario) return entry.first;
    }
  }
  throw std::invalid_argument("ScenarioManager::getIndexOfCurrentScen: invalid operation");
}

void ScenarioManager::addScenery(unsigned int index, const std::shared_ptr<Scenario>& scenario) {
  sceneries[index] = scenario;
  sceneryIsolatedData.emplace(scenario->getId(), SceneryIsolatedData());
  numberOfSceneries = static_cast<unsigned int>(sceneries.size());
  if (sceneries.size() == 1) currentScenario = scenario;
}

void ScenarioManager::deleteCurrentScenery(bool fromDatabase) {
  if (sceneries.empty()) return;
  const unsigned int removed = getIndexOfCurrentScen();
  if (fromDatabase) store().deleteScenario(sceneries.at(removed)->getDatabaseId());
  sceneryIsolatedData.erase(sceneries.at(removed)->getId());
  std::map<unsigned int, std::shared_ptr<Scenario>> renumbered;
  for (const auto& entry : sceneries) {
    if (entry.first < removed) renumbered.emplace(entry.first, entry.second);
    if (entry.first > removed) renumbered.emplace(entry.first - 1, entry.second);
  }
  sceneries = std::move(renumbered);
  numberOfSceneries = static_cast<unsigned int>(sceneries.size());
  if (sceneries.empty()) {
    currentScenario = nullptr;
  } else {
    auto neighbour = sceneries.lower_bound(removed);
    currentScenario = neighbour != sceneries.end() ? neighbour->second : sceneries.rbegin()->second;
  }
}

void ScenarioManager::clear() {
  sceneries.clear();
  sceneryIsolatedData.clear();
  currentScenario = nullptr;
  numberOfSceneries = 0;
  countVirtualElementId = 0;
  nextScenarioId = 1;
}

bool ScenarioManager::executeScenery(int index, const Progress& progress,
                                     const Progress& databaseProgress) {
  return execute(index, databaseProgress,
                 [&](Scenario& scenario) { return scenario.run(progress); });
}

bool ScenarioManager::executeIsolatedScenery(int index, const Progress& progress,
                                             const Progress& databaseProgress) {
  return execute(index, databaseProgress,
                 [&](Scenario& scenario) { return scenario.runIsolated(progress); });
}

bool ScenarioManager::execute(int index, const Progress& databaseProgress,
                              const std::function<bool(Scenario&)>& run) {
  auto it = index < 0 ? sceneries.end() : sceneries.find(static_cast<unsigned int>(index));
  if (it == sceneries.end()) {
    throw std::invalid_argument("ScenarioManager::executeScenery: scenery's index is invalid");
  }
  const bool finished = run(*it->second);
  if (finished && databaseProgress) {
    updateSceneryResultsInDatabase(it->second, store().openDatabase(), databaseProgress);
  }
  return finished;
}

SceneryIsolatedData& ScenarioManager::getSceneryIsolatedDataByID(unsigned int id) {
  auto it = sceneryIsolatedData.find(id);
  if (it == sceneryIsolatedData.end()) {
    throw std::invalid_argument(
        "IsolatedNetworkManager::getSceneryIsolatedDataByID: invalid unionID");
  }
  return it->second;
}

void ScenarioManager::initializeSceneryIsolatedData(unsigned int id) {
  auto it = sceneryIsolatedData.find(id);
  const std::shared_ptr<Scenario> scenario = getSceneryById(id);
  if (it == sceneryIsolatedData.end() || !scenario) {
    throw std::invalid_argument(
        "IsolatedNetworkManager::initializeSceneryIsolatedData: invalid unionID");
  }
  it->second.initialize(scenario->getUnionLinks(), scenario->getInterval());
}

void ScenarioManager::addSceneryIsolatedData(unsigned int id, const SceneryIsolatedData& data) {
  sceneryIsolatedData[id] = data;
}

void ScenarioManager::updateSceneryResultsInDatabase(const std::shared_ptr<Scenario>& scenario,
                                                     SQLite::Database& storage,
                                                     const Progress& progress) {
  store().storeResults(scenario, storage, progress);
}

std::shared_ptr<ScenarioStore>& ScenarioManager::installedStore() {
  static std::shared_ptr<ScenarioStore> installed;
  return installed;
}

void ScenarioManager::setStore(const std::shared_ptr<ScenarioStore>& value) {
  installedStore() = value;
}

ScenarioStore& ScenarioManager::store() {
  if (!installedStore()) throw std::logic_error("ScenarioManager: no project database store");
  return *installedStore();
}

long ScenarioManager::getTotalOfResultsInDatabaseProgressBar(unsigned int numberOfWindows,
                                                             const Scenario::Elements& elements) {
  long total = 0;
  for (const auto& element : elements) {
    if (!element->isEnabled()) continue;
    const auto windows = std::min<std::size_t>(numberOfWindows, element->getOutputSeries().size());
    for (unsigned int window = 0; window < windows; ++window) {
      total += static_cast<long>(element->getVectorOfSeries(window).size());
    }
  }
  return total;
}
