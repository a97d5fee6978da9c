#include "project/database/DatabaseScenarioStore.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <stdexcept>

#include "common/Calendar.h"
#include "core/ElementsFilter.h"
#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseDelete.h"
#include "project/database/DatabaseException.h"
#include "project/database/ResultSeriesWriter.h"
#include "project/database/SQLStorage.h"
#include "project/database/TimeStampHash.h"
#include "scenario/ScenarioManager.h"

namespace {

// Switches SQLite's foreign-key checks off for the life of the object and back on after. The
// checks cost three index searches per row, more than the row itself; ResultSeriesWriter checks
// each element once instead, and the type and user rows it writes are the ones it looked up. The
// pragma is a no-op inside a transaction, so it goes before the transaction begins.
class ForeignKeysOff {
 public:
  explicit ForeignKeysOff(SQLite::Database& storage) : storage(storage) {
    SQLite::Statement query(storage, "PRAGMA foreign_keys");
    wasOn = query.executeStep() && query.getColumn(0).getInt() != 0;
    if (wasOn) storage.exec("PRAGMA foreign_keys = OFF");
  }
  ~ForeignKeysOff() {
    if (!wasOn) return;
    try {
      storage.exec("PRAGMA foreign_keys = ON");
    } catch (const SQLite::Exception&) {
      // Only a connection in trouble refuses a pragma; the next statement reports it.
    }
  }
  ForeignKeysOff(const ForeignKeysOff&) = delete;
  ForeignKeysOff& operator=(const ForeignKeysOff&) = delete;

 private:
  SQLite::Database& storage;
  bool wasOn = false;
};

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
    ForeignKeysOff unchecked(storage);
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    ResultSeriesWriter writer(storage, timeStamp, hash);
    for (const auto& element : elements) {
      const auto held = std::min<std::size_t>(windows, element->getOutputSeries().size());
      for (unsigned int window = 0; window < held; ++window) {
        for (const auto& serie : element->getVectorOfSeries(window)) {
          writer.write(element->getDatabaseId(), *serie, window);
          bar.updateWithThrow();
        }
      }
    }
    transaction.commit();
  });
}
