#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace SQLite {
class Database;
}

// Copies tables of the project schema from a database attached to a connection into the
// connection's main database, row for row and key for key, so that the databaseIds a project file
// holds stay valid for the copy. While it lives, the source is attached to the target under the
// schema name kSourceSchema; attaching cannot happen inside a transaction, so make it before
// opening one. Each table copied is one step told to the progress function.
class TableCopy {
 public:
  static const char* const kSourceSchema;

  // Told (tables copied, tables in all); false cancels.
  using Progress = std::function<bool(long, long)>;

  // Attaches the database file at sourcePath to target; totalTables is what progress is told as
  // the whole. Throws DatabaseException when SQLite refuses the file.
  TableCopy(SQLite::Database& target, const std::string& sourcePath, Progress progress,
            long totalTables);
  // Detaches the source.
  ~TableCopy();
  TableCopy(const TableCopy&) = delete;
  TableCopy& operator=(const TableCopy&) = delete;

  // Copies the rows of table whose foreign keys find their rows in the target; rows that point
  // at nothing (left by programs that wrote without foreign keys) stay behind. Gives the number
  // of rows copied. Throws KOVACoreProgressBar::ProgressCancelException when progress then
  // answers false, SQLite's exception on failure.
  int64_t copy(const std::string& table);
  // Removes every row of every table of the target, children before parents. Throws SQLite's
  // exception on failure.
  void clearTarget();

 private:
  SQLite::Database& target;
  Progress progress;
  long totalTables;
  long copiedTables = 0;
};
