#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "project/database/SerieTypeKey.h"

namespace SQLite {
class Database;
}
class Scenario;

// Fills the scenarios of a project file from the project database.
class DatabaseProjectLoader {
 public:
  // Loads every scenario (see DatabaseLoadScenario::load); progress is told (elements done,
  // elements in all). Throws DatabaseException on an SQLite failure, std::invalid_argument
  // for a scenario without its row, and DatabaseLoadException for series rows that cannot be read
  // (see DatabaseLoadElement) or whose series type has lost its vocabulary rows.
  static void load(SQLite::Database& storage,
                   const std::vector<std::shared_ptr<Scenario>>& scenarios,
                   const std::function<bool(long, long)>& progress);
  // The number of elements of scenarios.
  static long totalElementsInProject(const std::vector<std::shared_ptr<Scenario>>& scenarios);
  // Replaces the results of scenario by those of the stored run told by hash.
  static void loadResultsByHash(SQLite::Database& storage,
                                const std::shared_ptr<Scenario>& scenario, const std::string& hash);

 private:
  // Throws DatabaseLoadException when an enabled row of table has a type that is not among
  // serieTypeIds.
  static void requireKnownSerieTypes(SQLite::Database& storage, const char* table,
                                     const SerieTypeIds& serieTypeIds);
};
