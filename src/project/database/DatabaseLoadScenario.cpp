#include "project/database/DatabaseLoadScenario.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>
#include <stdexcept>

#include "core/ConfigurationHeader.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseHydrologicalSeries.h"
#include "project/database/DatabaseLoadElement.h"
#include "project/database/DatabaseLoadElementFactory.h"

namespace {

bool scenarioRowExists(SQLite::Database& storage, int64_t databaseId) {
  return DatabaseException::guard([&] {
    SQLite::Statement query(storage, "SELECT 1 FROM Scenario WHERE databaseId = ?");
    query.bind(1, databaseId);
    return query.executeStep();
  });
}

}  // namespace

DatabaseLoadScenario::DatabaseLoadScenario(std::shared_ptr<Scenario> scenario)
    : scenario(std::move(scenario)) {}

void DatabaseLoadScenario::load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                                const Progress& progress, long& done, long total) {
  if (!scenarioRowExists(storage, scenario->getDatabaseId())) {
    throw std::invalid_argument("DatabaseLoadScenario::load(): scenario not in the database");
  }
  const bool loadResults = ConfigurationHeader::isLoadResults();
  if (loadResults) scenario->createResults();
  for (const auto& element : scenario->getElements()) {
    DatabaseLoadElementFactory::make(element)->load(storage, serieTypeIds, loadResults);
    loadElementExtras(storage, *element);
    if (progress) progress(++done, total);
  }
}

std::vector<DatabaseLoadScenario::LostSerie> DatabaseLoadScenario::findLostInputSeries(
    SQLite::Database& storage) const {
  return DatabaseException::guard([&] {
    std::vector<LostSerie> lost;
    SQLite::Statement query(storage,
                            "SELECT DISTINCT SerieInput.type, SerieType.type, Unit.name FROM "
                            "SerieInput JOIN SerieType ON SerieType.id = SerieInput.type JOIN "
                            "Unit ON Unit.id = SerieType.unit WHERE SerieInput.elementID = ? AND "
                            "SerieInput.enabled = 1");
    for (const auto& element : scenario->getElements()) {
      std::set<SerieTypeKey> held;
      for (const auto& serie : element->getVectorOfInputSeries()) {
        held.insert(SerieTypeKey::of(*serie));
      }
      query.bind(1, static_cast<int64_t>(element->getDatabaseId()));
      while (query.executeStep()) {
        const SerieTypeKey key{query.getColumn(1).getString(), query.getColumn(2).getString()};
        if (held.count(key) == 0) {
          lost.emplace_back(element->getDatabaseId(), query.getColumn(0).getInt64());
        }
      }
      query.reset();
    }
    return lost;
  });
}

void DatabaseLoadScenario::loadResultsByHash(SQLite::Database& storage,
                                             const SerieTypeIds& serieTypeIds,
                                             const std::string& hash) {
  scenario->createResults();
  for (const auto& element : scenario->getElements()) {
    DatabaseLoadElementFactory::make(element)->loadResultsWithHash(storage, serieTypeIds, hash);
  }
}

void DatabaseLoadScenario::loadElementExtras(SQLite::Database&, const Element&) {}

void DatabaseLoadPriorityScenario::loadElementExtras(SQLite::Database& storage,
                                                     const Element& element) {
  DatabaseHydrologicalSeries::loadAll(storage, *getScenario(), element);
}
