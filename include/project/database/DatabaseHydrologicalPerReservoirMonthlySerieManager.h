#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}
class Serie;

// The goal series of each zone of a reservoir in each month slot (0 = January), stored in the
// table HidrologicalStatePerReservoirMonthlySeries. Every method throws DatabaseException on an
// SQLite failure.
class DatabaseHydrologicalPerReservoirMonthlySerieManager {
 public:
  // Writes serie under (elementId, index, month).
  static void addSerie(SQLite::Database& storage, int64_t elementId, unsigned int index,
                       unsigned int month, const Serie& serie);
  // Removes the series under (elementId, index, month).
  static void deleteSerie(SQLite::Database& storage, int64_t elementId, unsigned int index,
                          unsigned int month);
  // Removes every series of the element.
  static void deleteAllSeriesOfElement(SQLite::Database& storage, int64_t elementId);
  // Replaces the series under (elementId, index, month) by serie.
  static void updateSerie(SQLite::Database& storage, int64_t elementId, unsigned int index,
                          unsigned int month, const Serie& serie);
  // Sets the stored values under (elementId, index, month) into serie; false when none are stored.
  static bool loadHydrologicalSeriesFromDatabase(SQLite::Database& storage, int64_t elementId,
                                                 unsigned int index, unsigned int month,
                                                 Serie& serie);
};
