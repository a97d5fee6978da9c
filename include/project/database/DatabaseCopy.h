#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace SQLite {
class Database;
}

// Copies a whole project database into another file, row for row and key for key, history and
// every stored run included, so that the project file's databaseIds hold for the copy. The copy
// is one transaction on the target: it ends complete or leaves the target as it was. Rows whose
// foreign keys point at nothing are left behind.
class DatabaseCopy {
 public:
  // Told (tables copied, tables in all); false cancels.
  using Progress = std::function<bool(long, long)>;

  // Copies storage into the database file at path, which becomes the temporary database of the
  // open SQLStorage (kept there for SQLStorage::replaceOldStorage when the copy succeeds, closed
  // when it does not). Whatever the file held before is replaced. userId is the user on whose
  // behalf the copy is made. True when copied, false when progress cancelled. Throws
  // std::logic_error without an open SQLStorage, std::invalid_argument
  // "DatabaseCopy::copyDatabase(): the copy would overwrite its source" when path is storage's own
  // file, as copyRows otherwise.
  [[nodiscard]] static bool copyDatabase(SQLite::Database& storage, const std::string& path,
                                         int64_t userId, const Progress& progress);
  // Replaces every row of target by the rows of source, in one transaction on target. True when
  // copied, false when progress cancelled, target unchanged then. Throws std::invalid_argument
  // "UsersCopy::copyUsers(): unknown userId" when source has no such user and DatabaseException
  // on an SQLite failure, target unchanged in both cases.
  [[nodiscard]] static bool copyRows(SQLite::Database& source, SQLite::Database& target,
                                     int64_t userId, const Progress& progress);
};
