#pragma once

#include <functional>
#include <memory>

namespace SQLite {
class Database;
}
class Scenario;

// Stores the elements of a scenario made as a copy of another (a conversion, a solution turned
// into a scenario) under the scenario's own row: each element gets a new Element row, and with
// it what it holds, so that the copy and its source no longer share rows.
class DatabaseSceneryCopy {
 public:
  // Told (elements done, elements in all); false cancels.
  using Progress = std::function<bool(long, long)>;

  // As below in the open project database. Throws std::logic_error without one.
  [[nodiscard]] static bool sceneryCopy(const std::shared_ptr<Scenario>& scenario,
                                        const Progress& progress);
  // Writes every element of scenario under the scenario's row (see
  // DatabaseInsert::insertSceneryEntryInDatabase) in one transaction: its row, inputs, a
  // reservoir's curve, the goal series of its priority settings and the results it holds, giving
  // each element its new row's key as databaseId. True when written; false when progress
  // cancelled, nothing written then and the elements keep their databaseIds. Throws
  // std::invalid_argument "DatabaseSceneryCopy::sceneryCopy(): scenario not in the database"
  // when storage has no row for the scenario's databaseId, DatabaseException on an SQLite
  // failure (nothing written, databaseIds kept).
  [[nodiscard]] static bool sceneryCopy(SQLite::Database& storage,
                                        const std::shared_ptr<Scenario>& scenario,
                                        const Progress& progress);
};
