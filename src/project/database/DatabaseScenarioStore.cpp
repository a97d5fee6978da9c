#include "project/database/DatabaseScenarioStore.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "common/Calendar.h"
#include "common/Serie.h"
#include "core/Element.h"
#include "core/ElementsFilter.h"
#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseDelete.h"
#include "project/database/DatabaseException.h"
#include "project/database/ResultSeriesWriter.h"
#include "project/database/SQLStorage.h"
#include "project/database/TimeStampHash.h"
#include "scenario/ScenarioManager.h"

namespace {

// The connection's settings for the length of a store, put back after it. Pragmas are no-ops
// inside a transaction, so the object goes before the transaction begins.
// - Foreign-key checks off: they cost three index searches per row, more than the row itself;
//   ResultSeriesWriter checks each element once instead, and the type and user rows it writes are
//   the ones it looked up.
// - Synchronous NORMAL: the rollback journal still makes the store all or nothing when the process
//   is killed; what is given up is the extra sync of the journal's header at each cache spill.
// - A page cache of 64 MiB: a run's rows and index entries spill to the file less often.
class StoreSettings {
 public:
  explicit StoreSettings(SQLite::Database& storage)
      : storage(storage),
        former{{"foreign_keys", read("foreign_keys")},
               {"synchronous", read("synchronous")},
               {"cache_size", read("cache_size")}} {
    storage.exec("PRAGMA foreign_keys = OFF");
    storage.exec("PRAGMA synchronous = NORMAL");
    storage.exec("PRAGMA cache_size = -65536");
  }
  ~StoreSettings() {
    try {
      for (const auto& [name, value] : former) storage.exec("PRAGMA " + name + " = " + value);
    } catch (const SQLite::Exception&) {
      // Only a connection in trouble refuses a pragma; the next statement reports it.
    }
  }
  StoreSettings(const StoreSettings&) = delete;
  StoreSettings& operator=(const StoreSettings&) = delete;

 private:
  std::string read(const std::string& name) {
    SQLite::Statement query(storage, "PRAGMA " + name);
    return query.executeStep() ? query.getColumn(0).getString() : "0";
  }

  SQLite::Database& storage;
  const std::vector<std::pair<std::string, std::string>> former;
};

// One result series of a run with where it goes.
struct StoredSerie {
  int64_t elementId;
  unsigned int window;
  std::shared_ptr<Serie> serie;
};

// The result series of the enabled elements, grouped by kind and unit, then by element and
// window: the order of both SerieOutput indexes, so that each series' index entries go next to
// those of the series before, in pages that are still in the cache.
std::vector<StoredSerie> inIndexOrder(const std::vector<std::shared_ptr<Element>>& elements,
                                      unsigned int windows) {
  std::vector<StoredSerie> all;
  for (const auto& element : elements) {
    const auto held = std::min<std::size_t>(windows, element->getOutputSeries().size());
    for (unsigned int window = 0; window < held; ++window) {
      for (auto& serie : element->getVectorOfSeries(window))
        all.push_back({element->getDatabaseId(), window, std::move(serie)});
    }
  }
  std::stable_sort(all.begin(), all.end(), [](const StoredSerie& a, const StoredSerie& b) {
    return std::tie(a.serie->getName(), a.serie->getUnit().getName(), a.elementId, a.window) <
           std::tie(b.serie->getName(), b.serie->getUnit().getName(), b.elementId, b.window);
  });
  return all;
}

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
    StoreSettings settings(storage);
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    ResultSeriesWriter writer(storage, timeStamp, hash);
    for (const auto& result : inIndexOrder(elements, windows)) {
      writer.write(result.elementId, *result.serie, result.window);
      bar.updateWithThrow();
    }
    transaction.commit();
  });
}
