#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "common/Interval.h"
#include "core/Scenario.h"

// The process-wide owner of the open project's scenarios, by index, one of them current. It has
// no lock: one caller drives it at a time.
class ScenarioManager {
 public:
  using Progress = std::function<bool(long, long)>;

  static ScenarioManager& getInstance();

  // Throws std::out_of_range for an absent index.
  const std::shared_ptr<Scenario>& mappingScenery(unsigned int index) const;
  // The scenario with that database id / id, or null.
  std::shared_ptr<Scenario> mappingSceneryByDatabaseID(unsigned int databaseId) const;
  std::shared_ptr<Scenario> getSceneryById(unsigned int id) const;

  const std::shared_ptr<Scenario>& getCurrentScenario() const { return currentScenario; }
  void setCurrentScenario(const std::shared_ptr<Scenario>& scenario) { currentScenario = scenario; }
  // Throws std::out_of_range for an absent index.
  void setCurrentScenario(unsigned int index);

  unsigned int getNumberOfSceneries() const { return numberOfSceneries; }
  const std::map<unsigned int, std::shared_ptr<Scenario>>& getSceneries() const { return sceneries; }
  std::map<unsigned int, Interval> getIntervals() const;
  // Throws std::invalid_argument "ScenarioManager::getIndexByScenId: invalid operation".
  unsigned int getIndexByScenId(unsigned int id) const;
  // Throws std::invalid_argument "ScenarioManager::getIndexOfCurrentScen: invalid operation"
  // without scenarios, without a current one, or with a current one that is not held.
  unsigned int getIndexOfCurrentScen() const;

  // Stores scenario under index; the only scenario becomes current.
  void addScenery(unsigned int index, const std::shared_ptr<Scenario>& scenario);
  // Removes the current scenario, renumbers those after it and makes a neighbour current.
  void deleteCurrentScenery();
  void clear();

  // Runs the scenario at index and answers whether it finished. Throws std::invalid_argument
  // "ScenarioManager::executeScenery: scenery's index is invalid" for an absent index.
  bool executeScenery(int index, const Progress& progress, const Progress& databaseProgress);

  void setCountVirtualElementId(unsigned int value) { countVirtualElementId = value; }
  // The next id for an element that exists only in an interface.
  unsigned int makeCountVirtualElementId() { return countVirtualElementId++; }

 private:
  ScenarioManager() = default;

  unsigned int numberOfSceneries = 0;
  unsigned int countVirtualElementId = 0;
  std::map<unsigned int, std::shared_ptr<Scenario>> sceneries;
  std::shared_ptr<Scenario> currentScenario;
};
