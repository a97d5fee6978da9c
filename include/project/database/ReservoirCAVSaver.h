#pragma once

#include <cstdint>
#include <string>

namespace SQLite {
class Database;
}
class Reservoir;

// Writes a reservoir's level-area-volume table.
class ReservoirCAVSaver {
 public:
  // One enabled Cav row per row of the table, numbered from 0 in `line`, with level (m), area
  // (km²) and volume (hm³). Throws SQLite's exception on failure.
  static void save(SQLite::Database& storage, const Reservoir& reservoir,
                   const std::string& timeStamp, int64_t elementId, int64_t userId);
};
