#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "project/database/SerieTypeKey.h"

namespace SQLite {
class Database;
}

// Fills the SerieType table from the vocabulary: one row per (type, unit) pair.
class SerieTypeLiteSaver {
 public:
  // "input" for 0, "output" for 1, "Undefined" for any other value.
  static std::string directionToString(int direction);
  // Adds the pairs the table lacks, with the direction of the kind ("Volume meta", supplied and
  // computed, is an input) and the row of its unit in unitIds, and gives the row of every pair.
  // Throws std::out_of_range when a unit is not in unitIds, SQLite's exception on failure.
  static SerieTypeIds save(SQLite::Database& storage,
                           const std::map<std::string, int64_t>& unitIds);
};
