#include "project/database/DatabaseProjectLoader.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/Scenario.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseLoadException.h"
#include "project/database/DatabaseLoadScenario.h"
#include "project/database/DatabaseLoadScenarioFactory.h"
#include "project/database/DatabaseSearch.h"

void DatabaseProjectLoader::load(SQLite::Database& storage,
                                 const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                 const std::function<bool(long, long)>& progress) {
  // Nothing to fill: the database is not read, so that it may even lack the schema.
  if (scenarios.empty()) return;
  const auto serieTypeIds = DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(storage);
  for (const char* table : {"SerieInput", "SerieOutput"}) {
    requireKnownSerieTypes(storage, table, serieTypeIds);
  }
  const long total = totalElementsInProject(scenarios);
  long done = 0;
  for (const auto& scenario : scenarios) {
    DatabaseLoadScenarioFactory::make(scenario->getScenarioType().getName(), scenario)
        ->load(storage, serieTypeIds, progress, done, total);
  }
}

long DatabaseProjectLoader::totalElementsInProject(
    const std::vector<std::shared_ptr<Scenario>>& scenarios) {
  long total = 0;
  for (const auto& scenario : scenarios) total += static_cast<long>(scenario->getElements().size());
  return total;
}

void DatabaseProjectLoader::loadResultsByHash(SQLite::Database& storage,
                                              const std::shared_ptr<Scenario>& scenario,
                                              const std::string& hash) {
  DatabaseLoadScenarioFactory::make(scenario->getScenarioType().getName(), scenario)
      ->loadResultsByHash(storage, DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(storage),
                          hash);
}

// A series row whose type has lost its SerieType or Unit row would be passed over by every
// lookup, and the series read as if it had no values there.
void DatabaseProjectLoader::requireKnownSerieTypes(SQLite::Database& storage, const char* table,
                                                   const SerieTypeIds& serieTypeIds) {
  std::string known;
  for (const auto& entry : serieTypeIds) {
    known += (known.empty() ? "" : ",") + std::to_string(entry.second);
  }
  DatabaseException::guard([&] {
    SQLite::Statement query(storage, std::string("SELECT type, elementID, date FROM ") + table +
                                         " WHERE enabled = 1 AND type NOT IN (" + known +
                                         ") LIMIT 1");
    if (!query.executeStep()) return;
    throw DatabaseLoadException(
        std::string("table ") + table + ", element databaseId " + query.getColumn(1).getString() +
        ", date '" + query.getColumn(2).getString() + "': series type " +
        query.getColumn(0).getString() +
        " has no row in SerieType with a row in Unit (the vocabulary rows are missing)");
  });
}
