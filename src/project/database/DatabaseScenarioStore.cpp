#include "project/database/DatabaseScenarioStore.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <stdexcept>

#include "common/Calendar.h"
#include "core/ElementsFilter.h"
#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseDelete.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/SQLStorage.h"
#include "project/database/TimeStampHash.h"
#include "scenario/ScenarioManager.h"

namespace {
// Every program that links the library gets its scenario manager wired to the project database
// before main() runs.
[[maybe_unused]] const bool installed = [] {
  ScenarioManager::setStore(std::make_shared<DatabaseScenarioStore>());
  return true;
}();
}  // namespace

SQLite::Database& DatabaseScenarioStore::openDatabase() {
  return SQLStorage::getInstance().getStorageRef();
}

void DatabaseScenarioStore::deleteScenario(unsigned int databaseId) {
  if (!SQLStorage::hasInstance()) {
    throw std::logic_error(
        "ScenarioManager::deleteCurrentScenery(): the project database is not open");
  }
  DatabaseDelete::deleteScenByID(SQLStorage::getInstance().getStorageRef(), databaseId);
}

void DatabaseScenarioStore::storeResults(const std::shared_ptr<Scenario>& scenario,
                                         SQLite::Database& storage, const Progress& progress) {
  const auto elements = ElementsFilter::filterByEnabledElements(scenario->getElements());
  const auto windows = static_cast<unsigned int>(scenario->calcVectorOfIntervals().size());
  KOVACoreProgressBar bar(
      0,
      static_cast<unsigned int>(
          ScenarioManager::getTotalOfResultsInDatabaseProgressBar(windows, elements)),
      progress);
  const std::string timeStamp = Calendar::getTimeStamp();
  const std::string hash = TimeStampHash::make(scenario->getDatabaseId(), timeStamp);
  DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    for (const auto& element : elements) {
      const auto held = std::min<std::size_t>(windows, element->getOutputSeries().size());
      for (unsigned int window = 0; window < held; ++window) {
        for (const auto& serie : element->getVectorOfSeries(window)) {
          DatabaseUpdate::updateOutputSerie(storage, element->getDatabaseId(), *serie, window,
                                            timeStamp, hash);
          bar.updateWithThrow();
        }
      }
    }
    transaction.commit();
  });
}
