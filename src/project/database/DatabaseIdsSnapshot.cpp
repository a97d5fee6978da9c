#include "project/database/DatabaseIdsSnapshot.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/KOVACoreProgressBar.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"

DatabaseIdsSnapshot::DatabaseIdsSnapshot(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  for (const auto& scenario : scenarios) {
    scenarioIds.emplace_back(scenario, scenario->getDatabaseId());
    for (const auto& element : scenario->getElements()) {
      elementIds.emplace_back(element, element->getDatabaseId());
    }
  }
}

void DatabaseIdsSnapshot::restore() const {
  for (const auto& entry : scenarioIds) entry.first->setDatabaseId(entry.second);
  for (const auto& entry : elementIds) entry.first->setDatabaseId(entry.second);
}

bool DatabaseIdsSnapshot::writeOrRestore(SQLite::Database& storage,
                                         const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                         const std::function<void()>& write) {
  const DatabaseIdsSnapshot snapshot(scenarios);
  try {
    DatabaseException::guard([&] {
      SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
      write();
      transaction.commit();
    });
    return true;
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    snapshot.restore();
    return false;
  } catch (...) {
    snapshot.restore();
    throw;
  }
}
