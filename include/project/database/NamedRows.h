#pragma once

#include <map>
#include <string>
#include <vector>

namespace SQLite {
class Database;
}

// The rows of a small table of (id, name, ...) found by name.
class NamedRows {
 public:
  // Adds a row for each name the table lacks, with extra's values (column to text) beside it;
  // rows already there keep their ids.
  static void insertMissing(SQLite::Database& storage, const std::string& table,
                            const std::vector<std::string>& names,
                            const std::map<std::string, std::string>& extra = {});
};
