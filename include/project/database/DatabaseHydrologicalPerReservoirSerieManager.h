#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}
class Serie;

// The goal series of each zone of a reservoir (index in its zone list), stored in the table
// HidrologicalStatePerReservoirSeries. Every method throws DatabaseException on an SQLite failure.
class DatabaseHydrologicalPerReservoirSerieManager {
 public:
  // Writes serie under (elementId, index).
  static void addSerie(SQLite::Database& storage, int64_t elementId, unsigned int index,
                       const Serie& serie);
  // Removes the series under (elementId, index).
  static void deleteSerie(SQLite::Database& storage, int64_t elementId, unsigned int index);
  // Removes every series of the element.
  static void deleteAllSeriesOfElement(SQLite::Database& storage, int64_t elementId);
  // Replaces the series under (elementId, index) by serie.
  static void updateSerie(SQLite::Database& storage, int64_t elementId, unsigned int index,
                          const Serie& serie);
  // Sets the stored values under (elementId, index) into serie; false when none are stored.
  static bool loadHydrologicalSeriesFromDatabase(SQLite::Database& storage, int64_t elementId,
                                                 unsigned int index, Serie& serie);
};
