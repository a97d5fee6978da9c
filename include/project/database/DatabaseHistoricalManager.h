#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace SQLite {
class Database;
}
class Scenario;

// Clears a project database of what the project no longer uses. Outdated are the scenarios that
// are not among the project's, and the elements that no scenario of the project holds (those of
// outdated scenarios and those that edits in memory alone left behind): they go with every row
// that hangs on them. The history of the elements that remain goes as well: input series and
// curves that later ones replaced, and results of earlier runs or of changed scenarios (the rows
// with enabled 0). The project's scenarios are told by their databaseIds, their elements likewise.
// Every method throws DatabaseException on an SQLite failure.
class DatabaseHistoricalManager {
 public:
  // Told (tables cleared, tables in all); false cancels.
  using Progress = std::function<bool(long, long)>;
  using ElementIds = std::vector<int64_t>;

  // Runs every eraseAll... below in one transaction, one progress step after each. True when
  // done; false when progress cancelled, nothing erased then.
  [[nodiscard]] static bool eraseAllHistorical(
      SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios,
      const Progress& progress);
  // The number of steps of eraseAllHistorical.
  static long totalProgressEraseAllHistorical();
  // The databaseIds of the Element rows that no scenario of scenarios holds, in increasing order.
  static ElementIds getElementsWithOutDatedSceneries(
      SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios);

  // Remove the rows of outdated elements and, where the table keeps history, every row with
  // enabled 0.
  static void eraseAllInputSeriesSceneriesOutDated(SQLite::Database& storage,
                                                   const ElementIds& outdated);
  static void eraseAllOutputSeriesSceneriesOutDated(SQLite::Database& storage,
                                                    const ElementIds& outdated);
  static void eraseAllCAVSceneriesOutDated(SQLite::Database& storage, const ElementIds& outdated);
  static void eraseAllHydrologicalSeriesSceneriesOutDated(SQLite::Database& storage,
                                                          const ElementIds& outdated);
  static void eraseAllHydrologicalPerReservoirSeriesSceneriesOutDated(SQLite::Database& storage,
                                                                      const ElementIds& outdated);
  static void eraseAllHydrologicalPerReservoirMonthlySeriesSceneriesOutDated(
      SQLite::Database& storage, const ElementIds& outdated);
  // Removes the Element rows of outdated elements; call it once their rows are gone.
  static void eraseAllElementsSceneriesOutDated(SQLite::Database& storage,
                                                const ElementIds& outdated);
  // Removes the Scenario rows that are not of scenarios and have no Element row left.
  static void eraseAllScenariosSceneriesOutDated(
      SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios);

 private:
  // Children before parents, step() after each table.
  static void eraseInOrder(SQLite::Database& storage,
                           const std::vector<std::shared_ptr<Scenario>>& scenarios,
                           const std::function<void()>& step);
  // Removes the rows of table that belong to outdated elements, and with keepsHistory those with
  // enabled 0.
  static void eraseRows(SQLite::Database& storage, const char* table, const ElementIds& outdated,
                        bool keepsHistory);
};
