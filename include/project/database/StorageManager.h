#pragma once

#include <memory>
#include <string>

namespace SQLite {
class Database;
}

// Opens project databases.
class StorageManager {
 public:
  // A connection to the database at path with the project schema: created on the first open,
  // completed on a later one. Throws DatabaseException when the file cannot serve as the
  // project database (held by another program, not a database, not writable).
  static std::unique_ptr<SQLite::Database> createStorage(const std::string& path);
};
