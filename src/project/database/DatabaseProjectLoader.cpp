#include "project/database/DatabaseProjectLoader.h"

#include "core/Scenario.h"
#include "project/database/DatabaseLoadScenario.h"
#include "project/database/DatabaseLoadScenarioFactory.h"
#include "project/database/DatabaseSearch.h"

void DatabaseProjectLoader::load(SQLite::Database& storage,
                                 const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                 const std::function<bool(long, long)>& progress) {
  const auto serieTypeIds = DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(storage);
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
