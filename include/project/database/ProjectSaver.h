#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "project/database/SerieTypeKey.h"
#include "vocabulary/EnumTypes.h"

namespace SQLite {
class Database;
}
class Element;
class Scenario;

// Writes whole scenarios to the project database. A full save replaces every scenario, element,
// series and curve row of the database by those of the scenarios given (the small tables stay),
// so that the database holds the project as it is in memory: inputs, curves, the hydrological
// series of priority scenarios, and the results each element holds, as one run per scenario.
class ProjectSaver {
 public:
  // Told (elements done, elements in all); false stops the save.
  using Progress = std::function<bool(long, long)>;
  // The rows of the small tables a save refers to.
  struct Keys {
    int64_t userId;
    std::map<ElementType, int64_t> elementTypeIds;
    SerieTypeIds serieTypeIds;
  };

  // Fills the small tables and saves scenarios inside one transaction: true when written, false
  // when progress stopped it; then nothing changes in the database, and scenarios and elements
  // keep the databaseIds they had. Throws DatabaseException on an SQLite failure, also with
  // nothing changed.
  static bool saveAsTransaction(SQLite::Database& storage,
                                const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                const Progress& progress);
  // Saves scenarios within the caller's transaction, giving each scenario and element the key of
  // its new row as databaseId. Throws KOVACoreProgressBar::ProgressCancelException when progress
  // answers false, std::out_of_range for a series type or element type missing from keys.
  static void save(SQLite::Database& storage,
                   const std::vector<std::shared_ptr<Scenario>>& scenarios, const Keys& keys,
                   const Progress& progress);
  // Fills the small tables with what the vocabulary adds to them and gives their rows. Throws
  // SQLite's exception on failure.
  static Keys makeKeys(SQLite::Database& storage);
  // Writes what element holds under its databaseId: inputs, a reservoir's curve, the goal series
  // of its priority settings in scenario, and the results of each window as the run told by
  // hash. Throws std::out_of_range for a series type missing from keys, SQLite's exception on
  // failure.
  static void saveElement(SQLite::Database& storage, const std::shared_ptr<Scenario>& scenario,
                          const std::shared_ptr<Element>& element, const Keys& keys,
                          const std::string& timeStamp, const std::string& hash);

 private:
  static void clearProjectRows(SQLite::Database& storage);
};
