#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "common/Interval.h"
#include "core/Scenario.h"
#include "core/SceneryIsolatedData.h"
#include "scenario/ScenarioStore.h"

namespace SQLite {
class Database;
}

// The process-wide owner of the open project's scenarios, by index, one of them current. It has
// no lock: one caller drives it at a time.
class ScenarioManager {
 public:
  using Progress = std::function<bool(long, long)>;

  // The one manager of the process.
  static ScenarioManager& getInstance();

  // The scenario at index. Throws std::out_of_range for an absent index.
  const std::shared_ptr<Scenario>& mappingScenery(unsigned int index) const;
  // The scenario with that database id / id, or null.
  std::shared_ptr<Scenario> mappingSceneryByDatabaseID(unsigned int databaseId) const;
  std::shared_ptr<Scenario> getSceneryById(unsigned int id) const;

  // The scenario the interface works on, or null.
  const std::shared_ptr<Scenario>& getCurrentScenario() const { return currentScenario; }
  // Makes scenario current; it need not be held (an isolated piece run on its own).
  void setCurrentScenario(const std::shared_ptr<Scenario>& scenario) { currentScenario = scenario; }
  // Makes the scenario at index current. Throws std::out_of_range for an absent index.
  void setCurrentScenario(unsigned int index);

  unsigned int getNumberOfSceneries() const { return numberOfSceneries; }
  // The scenarios by index.
  const std::map<unsigned int, std::shared_ptr<Scenario>>& getSceneries() const {
    return sceneries;
  }
  // The interval of each scenario, by index.
  std::map<unsigned int, Interval> getIntervals() const;
  // The index of the scenario with that id. Throws std::invalid_argument
  // "ScenarioManager::getIndexByScenId: invalid operation" when none has it.
  unsigned int getIndexByScenId(unsigned int id) const;
  // The index of the current scenario. Throws std::invalid_argument
  // "ScenarioManager::getIndexOfCurrentScen: invalid operation" without scenarios, without a
  // current one, or with a current one that is not held.
  unsigned int getIndexOfCurrentScen() const;

  // Stores scenario under index, with empty isolated data; the only scenario becomes current.
  void addScenery(unsigned int index, const std::shared_ptr<Scenario>& scenario);
  // Removes the current scenario and its isolated data, renumbers those after it and makes a
  // neighbour current; does nothing without scenarios. With fromDatabase its rows leave the open
  // project database first (DatabaseException on failure; std::logic_error
  // "ScenarioManager::deleteCurrentScenery(): the project database is not open" without one;
  // nothing changes then).
  void deleteCurrentScenery(bool fromDatabase);
  // Forgets every scenario and restarts the counters.
  void clear();

  // Runs the scenario at index and answers whether it finished; a finished run is written to the
  // open project database when databaseProgress is set. Throws std::invalid_argument
  // "ScenarioManager::executeScenery: scenery's index is invalid" for an absent index, and as
  // updateSceneryResultsInDatabase.
  bool executeScenery(int index, const Progress& progress, const Progress& databaseProgress);
  // As executeScenery, by isolated networks (Scenario::runIsolated).
  bool executeIsolatedScenery(int index, const Progress& progress,
                              const Progress& databaseProgress);

  // The isolated data of the scenario with id: the pieces of its last run by isolated networks
  // and their union flows. Throws std::invalid_argument
  // "IsolatedNetworkManager::getSceneryIsolatedDataByID: invalid unionID" for an id without data.
  SceneryIsolatedData& getSceneryIsolatedDataByID(unsigned int id);
  // Empties the isolated data of the scenario with id and gives each of its union links a new
  // flow series over its interval. Throws std::invalid_argument
  // "IsolatedNetworkManager::initializeSceneryIsolatedData: invalid unionID" for an id without
  // data or without a held scenario.
  void initializeSceneryIsolatedData(unsigned int id);
  void addSceneryIsolatedData(unsigned int id, const SceneryIsolatedData& data);
  // Writes the results of the enabled elements of scenario, every window, as one run (one time
  // stamp and hash) in one transaction, see DatabaseUpdate::updateOutputSerie. progress steps
  // once per series. Throws KOVACoreProgressBar::ProgressCancelException when progress answers
  // false and DatabaseException on an SQLite failure, nothing written then.
  static void updateSceneryResultsInDatabase(const std::shared_ptr<Scenario>& scenario,
                                             SQLite::Database& storage, const Progress& progress);
  // The steps of writing the results of elements to the database, for a progress bar: one per
  // result series of each enabled element in each of the first numberOfWindows windows (a window
  // an element has no results for counts nothing).
  static long getTotalOfResultsInDatabaseProgressBar(unsigned int numberOfWindows,
                                                     const Scenario::Elements& elements);

  // Where results are stored and deleted scenarios leave: the project database installs itself
  // here when the library loads.
  static void setStore(const std::shared_ptr<ScenarioStore>& value);

  // The id a new scenario of the project takes: one above the largest loaded, 1 at first.
  unsigned int getNextScenarioId() const { return nextScenarioId; }
  void setNextScenarioId(unsigned int value) { nextScenarioId = value; }

  // The id that makeCountVirtualElementId() gives next.
  void setCountVirtualElementId(unsigned int value) { countVirtualElementId = value; }
  // The next id for an element that exists only in an interface.
  unsigned int makeCountVirtualElementId() { return countVirtualElementId++; }

 private:
  ScenarioManager() = default;
  static std::shared_ptr<ScenarioStore>& installedStore();
  // The installed store. Throws std::logic_error when none is.
  static ScenarioStore& store();
  bool execute(int index, const Progress& databaseProgress,
               const std::function<bool(Scenario&)>& run);

  unsigned int numberOfSceneries = 0;
  unsigned int countVirtualElementId = 0;
  unsigned int nextScenarioId = 1;
  std::map<unsigned int, std::shared_ptr<Scenario>> sceneries;
  std::shared_ptr<Scenario> currentScenario;
  std::map<unsigned int, SceneryIsolatedData> sceneryIsolatedData;
};
