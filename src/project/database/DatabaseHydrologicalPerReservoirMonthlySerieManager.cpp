#include "project/database/DatabaseHydrologicalPerReservoirMonthlySerieManager.h"

#include "project/database/HydrologicalSerieRows.h"

namespace {

const HydrologicalSerieRows& rows() {
  static const HydrologicalSerieRows table("HidrologicalStatePerReservoirMonthlySeries", true);
  return table;
}

}  // namespace

void DatabaseHydrologicalPerReservoirMonthlySerieManager::addSerie(SQLite::Database& storage,
                                                                   int64_t elementId,
                                                                   unsigned int index,
                                                                   unsigned int month,
                                                                   const Serie& serie) {
  rows().add(storage, elementId, index, month, serie);
}

void DatabaseHydrologicalPerReservoirMonthlySerieManager::deleteSerie(SQLite::Database& storage,
                                                                      int64_t elementId,
                                                                      unsigned int index,
                                                                      unsigned int month) {
  rows().remove(storage, elementId, index, month);
}

void DatabaseHydrologicalPerReservoirMonthlySerieManager::deleteAllSeriesOfElement(
    SQLite::Database& storage, int64_t elementId) {
  rows().removeAll(storage, elementId);
}

void DatabaseHydrologicalPerReservoirMonthlySerieManager::updateSerie(SQLite::Database& storage,
                                                                      int64_t elementId,
                                                                      unsigned int index,
                                                                      unsigned int month,
                                                                      const Serie& serie) {
  rows().replace(storage, elementId, index, month, serie);
}

bool DatabaseHydrologicalPerReservoirMonthlySerieManager::loadHydrologicalSeriesFromDatabase(
    SQLite::Database& storage, int64_t elementId, unsigned int index, unsigned int month,
    Serie& serie) {
  return rows().load(storage, elementId, index, month, serie);
}
