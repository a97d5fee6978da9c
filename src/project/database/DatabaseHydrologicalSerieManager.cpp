#include "project/database/DatabaseHydrologicalSerieManager.h"

#include "project/database/HydrologicalSerieRows.h"

namespace {

const HydrologicalSerieRows& rows() {
  static const HydrologicalSerieRows table("HidrologicalStateSeries", false);
  return table;
}

}  // namespace

void DatabaseHydrologicalSerieManager::addSerie(SQLite::Database& storage, int64_t elementId,
                                                unsigned int index, const Serie& serie) {
  rows().add(storage, elementId, index, 0, serie);
}

void DatabaseHydrologicalSerieManager::deleteSerie(SQLite::Database& storage, int64_t elementId,
                                                   unsigned int index) {
  rows().remove(storage, elementId, index, 0);
}

void DatabaseHydrologicalSerieManager::deleteAllSeriesOfElement(SQLite::Database& storage,
                                                                int64_t elementId) {
  rows().removeAll(storage, elementId);
}

void DatabaseHydrologicalSerieManager::updateSerie(SQLite::Database& storage, int64_t elementId,
                                                   unsigned int index, const Serie& serie) {
  rows().replace(storage, elementId, index, 0, serie);
}

bool DatabaseHydrologicalSerieManager::loadHydrologicalSeriesFromDatabase(SQLite::Database& storage,
                                                                          int64_t elementId,
                                                                          unsigned int index,
                                                                          Serie& serie) {
  return rows().load(storage, elementId, index, 0, serie);
}
