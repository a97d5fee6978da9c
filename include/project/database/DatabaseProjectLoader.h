#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace SQLite {
class Database;
}
class Scenario;

// Fills the scenarios of a project file from the project database.
class DatabaseProjectLoader {
 public:
  // Loads every scenario (see DatabaseLoadScenario::load); progress is told (elements done,
  // elements in all). Throws DatabaseException on an SQLite failure and std::invalid_argument
  // for a scenario without its row.
  static void load(SQLite::Database& storage,
                   const std::vector<std::shared_ptr<Scenario>>& scenarios,
                   const std::function<bool(long, long)>& progress);
  // The number of elements of scenarios.
  static long totalElementsInProject(const std::vector<std::shared_ptr<Scenario>>& scenarios);
  // Replaces the results of scenario by those of the stored run told by hash.
  static void loadResultsByHash(SQLite::Database& storage,
                                const std::shared_ptr<Scenario>& scenario, const std::string& hash);
};
