#include "project/database/DatabaseHydrologicalSeries.h"

#include <functional>

#include "core/PriorityReservoirSettings.h"
#include "core/Scenario.h"
#include "project/database/DatabaseHydrologicalPerReservoirMonthlySerieManager.h"
#include "project/database/DatabaseHydrologicalPerReservoirSerieManager.h"
#include "project/database/DatabaseHydrologicalSerieManager.h"

namespace {

// Visits each goal series of element with its table, index and month slot.
using Visit = std::function<void(int table, unsigned int index, unsigned int month, Serie&)>;

void forEachGoalSerie(const Scenario& scenario, const Element& element, const Visit& visit) {
  const auto settings = std::dynamic_pointer_cast<PrioritySettings>(
      scenario.getSettingsManager().getSettings(element.getId()));
  if (!settings) return;
  const auto& pairs = settings->getPrioritySeries();
  for (unsigned int index = 0; index < pairs.size(); ++index)
    visit(0, index, 0, *pairs[index].second);
  const auto reservoir = std::dynamic_pointer_cast<PriorityReservoirSettings>(settings);
  if (!reservoir) return;
  const auto& zones = reservoir->getVectorOfHydrologicalZones();
  for (unsigned int index = 0; index < zones.size(); ++index)
    visit(1, index, 0, *zones[index].serie);
  if (!reservoir->initedVectorOfHydrologicalZonesMonthly()) return;
  for (unsigned int month = 0; month < 12; ++month) {
    const auto& monthly = reservoir->getVectorOfHydrologicalZonesMonthly(month);
    for (unsigned int index = 0; index < monthly.size(); ++index) {
      visit(2, index, month, *monthly[index].serie);
    }
  }
}

}  // namespace

void DatabaseHydrologicalSeries::saveAll(SQLite::Database& storage, const Scenario& scenario,
                                         const Element& element) {
  const int64_t id = element.getDatabaseId();
  forEachGoalSerie(
      scenario, element, [&](int table, unsigned int index, unsigned int month, Serie& serie) {
        if (table == 0) DatabaseHydrologicalSerieManager::addSerie(storage, id, index, serie);
        if (table == 1) {
          DatabaseHydrologicalPerReservoirSerieManager::addSerie(storage, id, index, serie);
        }
        if (table == 2) {
          DatabaseHydrologicalPerReservoirMonthlySerieManager::addSerie(storage, id, index, month,
                                                                        serie);
        }
      });
}

void DatabaseHydrologicalSeries::loadAll(SQLite::Database& storage, const Scenario& scenario,
                                         const Element& element) {
  const int64_t id = element.getDatabaseId();
  forEachGoalSerie(
      scenario, element, [&](int table, unsigned int index, unsigned int month, Serie& serie) {
        if (table == 0) {
          DatabaseHydrologicalSerieManager::loadHydrologicalSeriesFromDatabase(storage, id, index,
                                                                               serie);
        }
        if (table == 1) {
          DatabaseHydrologicalPerReservoirSerieManager::loadHydrologicalSeriesFromDatabase(
              storage, id, index, serie);
        }
        if (table == 2) {
          DatabaseHydrologicalPerReservoirMonthlySerieManager::loadHydrologicalSeriesFromDatabase(
              storage, id, index, month, serie);
        }
      });
}

bool DatabaseHydrologicalSeries::replace(SQLite::Database& storage, const Scenario& scenario,
                                         const Element& element, const Serie& serie) {
  const int64_t id = element.getDatabaseId();
  bool found = false;
  forEachGoalSerie(
      scenario, element, [&](int table, unsigned int index, unsigned int month, Serie& goal) {
        if (&goal != &serie) return;
        found = true;
        if (table == 0) DatabaseHydrologicalSerieManager::updateSerie(storage, id, index, goal);
        if (table == 1) {
          DatabaseHydrologicalPerReservoirSerieManager::updateSerie(storage, id, index, goal);
        }
        if (table == 2) {
          DatabaseHydrologicalPerReservoirMonthlySerieManager::updateSerie(storage, id, index,
                                                                           month, goal);
        }
      });
  return found;
}
