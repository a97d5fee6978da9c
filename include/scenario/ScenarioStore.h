#pragma once

#include <functional>
#include <memory>

namespace SQLite {
class Database;
}
class Scenario;

// What the scenario manager needs of the project database: the database stands on a floor above
// the scenarios, so it hands the manager this interface (ScenarioManager::setStore) instead of
// being included by it. The project database installs its implementation when the library loads.
class ScenarioStore {
 public:
  using Progress = std::function<bool(long, long)>;

  virtual ~ScenarioStore() = default;

  // The open project database. Throws std::logic_error when no project database is open.
  virtual SQLite::Database& openDatabase() = 0;
  // Removes the rows of the scenario with databaseId from the open project database. Throws
  // std::logic_error "ScenarioManager::deleteCurrentScenery(): the project database is not open"
  // without one.
  virtual void deleteScenario(unsigned int databaseId) = 0;
  // Writes the results of scenario to storage as one run, as
  // ScenarioManager::updateSceneryResultsInDatabase describes.
  virtual void storeResults(const std::shared_ptr<Scenario>& scenario, SQLite::Database& storage,
                            const Progress& progress) = 0;
};
