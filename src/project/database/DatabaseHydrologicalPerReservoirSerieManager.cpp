#include "project/database/DatabaseHydrologicalPerReservoirSerieManager.h"

#include "project/database/HydrologicalSerieRows.h"

namespace {

const HydrologicalSerieRows& rows() {
  static const HydrologicalSerieRows table("HidrologicalStatePerReservoirSeries", false);
  return table;
}

}  // namespace

void DatabaseHydrologicalPerReservoirSerieManager::addSerie(SQLite::Database& storage,
                                                            int64_t elementId, unsigned int index,
                                                            const Serie& serie) {
  rows().add(storage, elementId, index, 0, serie);
}

void DatabaseHydrologicalPerReservoirSerieManager::deleteSerie(SQLite::Database& storage,
                                                               int64_t elementId,
                                                               unsigned int index) {
  rows().remove(storage, elementId, index, 0);
}

void DatabaseHydrologicalPerReservoirSerieManager::deleteAllSeriesOfElement(
    SQLite::Database& storage, int64_t elementId) {
  rows().removeAll(storage, elementId);
}

void DatabaseHydrologicalPerReservoirSerieManager::updateSerie(SQLite::Database& storage,
                                                               int64_t elementId,
                                                               unsigned int index,
                                                               const Serie& serie) {
  rows().replace(storage, elementId, index, 0, serie);
}

bool DatabaseHydrologicalPerReservoirSerieManager::loadHydrologicalSeriesFromDatabase(
    SQLite::Database& storage, int64_t elementId, unsigned int index, Serie& serie) {
  return rows().load(storage, elementId, index, 0, serie);
}
