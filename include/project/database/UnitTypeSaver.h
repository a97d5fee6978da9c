#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace SQLite {
class Database;
}

// Fills the Unit table from the vocabulary.
class UnitTypeSaver {
 public:
  // Adds the units the table lacks and gives the row of every unit name. Throws SQLite's
  // exception on failure.
  static std::map<std::string, int64_t> save(SQLite::Database& storage);
};
