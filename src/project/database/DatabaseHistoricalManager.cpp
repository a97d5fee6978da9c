#include "project/database/DatabaseHistoricalManager.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>
#include <string>

#include "core/KOVACoreProgressBar.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"

namespace {

using ElementIds = DatabaseHistoricalManager::ElementIds;

// A temporary table of ids, so that one statement can test a whole list: a literal list would
// grow with the project past what a statement may hold.
class TemporaryIds {
 public:
  TemporaryIds(SQLite::Database& storage, const std::string& name, const std::set<int64_t>& ids)
      : storage(storage), name("temp.\"" + name + "\"") {
    storage.exec("CREATE TEMP TABLE IF NOT EXISTS " + this->name + " (id INTEGER PRIMARY KEY)");
    storage.exec("DELETE FROM " + this->name);
    SQLite::Statement insert(storage, "INSERT INTO " + this->name + " (id) VALUES (?)");
    for (const int64_t id : ids) {
      insert.bind(1, id);
      insert.exec();
      insert.reset();
    }
  }
  ~TemporaryIds() {
    // A table that cannot be dropped lives on until the connection closes, which does no harm.
    try {
      storage.exec("DROP TABLE IF EXISTS " + name);
    } catch (const SQLite::Exception&) {
    }
  }
  TemporaryIds(const TemporaryIds&) = delete;
  TemporaryIds& operator=(const TemporaryIds&) = delete;

  // "SELECT id FROM <table>", for an IN clause.
  std::string select() const { return "SELECT id FROM " + name; }

 private:
  SQLite::Database& storage;
  std::string name;
};

std::set<int64_t> scenarioIdsOf(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  std::set<int64_t> ids;
  for (const auto& scenario : scenarios) ids.insert(scenario->getDatabaseId());
  return ids;
}

std::set<int64_t> elementIdsOf(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  std::set<int64_t> ids;
  for (const auto& scenario : scenarios) {
    for (const auto& element : scenario->getElements()) ids.insert(element->getDatabaseId());
  }
  return ids;
}

std::set<int64_t> asSet(const ElementIds& ids) { return {ids.begin(), ids.end()}; }

using Manager = DatabaseHistoricalManager;
using EraseRowsOfElements = void (*)(SQLite::Database&, const ElementIds&);

// The erasures that work on the outdated elements, children before parents.
const std::vector<EraseRowsOfElements>& elementErasures() {
  static const std::vector<EraseRowsOfElements> erasures = {
      Manager::eraseAllInputSeriesSceneriesOutDated,
      Manager::eraseAllOutputSeriesSceneriesOutDated,
      Manager::eraseAllCAVSceneriesOutDated,
      Manager::eraseAllHydrologicalSeriesSceneriesOutDated,
      Manager::eraseAllHydrologicalPerReservoirSeriesSceneriesOutDated,
      Manager::eraseAllHydrologicalPerReservoirMonthlySeriesSceneriesOutDated,
      Manager::eraseAllElementsSceneriesOutDated};
  return erasures;
}

}  // namespace

bool DatabaseHistoricalManager::eraseAllHistorical(
    SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios,
    const Progress& progress) {
  long done = 0;
  const long total = totalProgressEraseAllHistorical();
  const auto step = [&] {
    if (progress && !progress(++done, total)) throw KOVACoreProgressBar::ProgressCancelException();
  };
  try {
    DatabaseException::guard([&] {
      SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
      eraseInOrder(storage, scenarios, step);
      transaction.commit();
    });
    return true;
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    return false;
  }
}

void DatabaseHistoricalManager::eraseInOrder(
    SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios,
    const std::function<void()>& step) {
  const ElementIds outdated = getElementsWithOutDatedSceneries(storage, scenarios);
  for (const auto erase : elementErasures()) {
    erase(storage, outdated);
    step();
  }
  eraseAllScenariosSceneriesOutDated(storage, scenarios);
  step();
}

long DatabaseHistoricalManager::totalProgressEraseAllHistorical() {
  // One step more for the scenario rows.
  return static_cast<long>(elementErasures().size()) + 1;
}

DatabaseHistoricalManager::ElementIds DatabaseHistoricalManager::getElementsWithOutDatedSceneries(
    SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  return DatabaseException::guard([&] {
    const TemporaryIds held(storage, "kova_held_elements", elementIdsOf(scenarios));
    SQLite::Statement query(storage, "SELECT databaseId FROM Element WHERE databaseId NOT IN (" +
                                         held.select() + ") ORDER BY databaseId");
    ElementIds outdated;
    while (query.executeStep()) outdated.push_back(query.getColumn(0).getInt64());
    return outdated;
  });
}

void DatabaseHistoricalManager::eraseRows(SQLite::Database& storage, const char* table,
                                          const ElementIds& outdated, bool keepsHistory) {
  DatabaseException::guard([&] {
    const TemporaryIds elements(storage, "kova_outdated_elements", asSet(outdated));
    storage.exec(std::string("DELETE FROM \"") + table + "\" WHERE elementID IN (" +
                 elements.select() + ")" + (keepsHistory ? " OR enabled = 0" : ""));
  });
}

void DatabaseHistoricalManager::eraseAllInputSeriesSceneriesOutDated(SQLite::Database& storage,
                                                                     const ElementIds& outdated) {
  eraseRows(storage, "SerieInput", outdated, true);
}

void DatabaseHistoricalManager::eraseAllOutputSeriesSceneriesOutDated(SQLite::Database& storage,
                                                                      const ElementIds& outdated) {
  eraseRows(storage, "SerieOutput", outdated, true);
}

void DatabaseHistoricalManager::eraseAllCAVSceneriesOutDated(SQLite::Database& storage,
                                                             const ElementIds& outdated) {
  eraseRows(storage, "Cav", outdated, true);
}

void DatabaseHistoricalManager::eraseAllHydrologicalSeriesSceneriesOutDated(
    SQLite::Database& storage, const ElementIds& outdated) {
  eraseRows(storage, "HidrologicalStateSeries", outdated, false);
}

void DatabaseHistoricalManager::eraseAllHydrologicalPerReservoirSeriesSceneriesOutDated(
    SQLite::Database& storage, const ElementIds& outdated) {
  eraseRows(storage, "HidrologicalStatePerReservoirSeries", outdated, false);
}

void DatabaseHistoricalManager::eraseAllHydrologicalPerReservoirMonthlySeriesSceneriesOutDated(
    SQLite::Database& storage, const ElementIds& outdated) {
  eraseRows(storage, "HidrologicalStatePerReservoirMonthlySeries", outdated, false);
}

void DatabaseHistoricalManager::eraseAllElementsSceneriesOutDated(SQLite::Database& storage,
                                                                  const ElementIds& outdated) {
  DatabaseException::guard([&] {
    const TemporaryIds elements(storage, "kova_outdated_elements", asSet(outdated));
    storage.exec("DELETE FROM Element WHERE databaseId IN (" + elements.select() + ")");
  });
}

void DatabaseHistoricalManager::eraseAllScenariosSceneriesOutDated(
    SQLite::Database& storage, const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  DatabaseException::guard([&] {
    const TemporaryIds held(storage, "kova_held_scenarios", scenarioIdsOf(scenarios));
    // A scenario row that an element row still names stays, for the foreign key.
    storage.exec("DELETE FROM Scenario WHERE databaseId NOT IN (" + held.select() +
                 ") AND databaseId NOT IN (SELECT scenId FROM Element)");
  });
}
