#include "project/database/DatabaseLoadElement.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "core/Reservoir.h"
#include "project/database/DatabaseException.h"

namespace {

// Sets the values of the rows the query gives (julian, value) into serie.
void fill(SQLite::Statement& query, Serie& serie) {
  while (query.executeStep()) {
    serie.setValue(static_cast<unsigned int>(query.getColumn(0).getInt64()),
                   query.getColumn(1).getDouble());
  }
  query.reset();
}

}  // namespace

DatabaseLoadElement::DatabaseLoadElement(std::shared_ptr<Element> element)
    : element(std::move(element)) {}

void DatabaseLoadElement::load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                               bool loadResults) {
  DatabaseException::guard([&] {
    SQLite::Statement query(storage,
                            "SELECT julian, value FROM SerieInput WHERE type = ? AND elementID = "
                            "? AND enabled = 1 ORDER BY julian, id");
    for (const auto& serie : element->getVectorOfInputSeries()) {
      const auto type = serieTypeIds.find(SerieTypeKey::of(*serie));
      if (type == serieTypeIds.end()) continue;
      query.bind(1, type->second);
      query.bind(2, static_cast<int64_t>(element->getDatabaseId()));
      fill(query, *serie);
    }
  });
  if (loadResults) this->loadResults(storage, serieTypeIds, "");
}

void DatabaseLoadElement::loadResultsWithHash(SQLite::Database& storage,
                                              const SerieTypeIds& serieTypeIds,
                                              const std::string& hash) {
  loadResults(storage, serieTypeIds, hash);
}

void DatabaseLoadElement::loadResults(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                                      const std::string& hash) {
  DatabaseException::guard([&] {
    // Without a hash, the enabled rows: those of the last run stored.
    SQLite::Statement query(
        storage, std::string("SELECT julian, value FROM SerieOutput WHERE type = ? AND "
                             "elementID = ? AND windowid = ? AND ") +
                     (hash.empty() ? "enabled = 1" : "timeStampHash = ?") + " ORDER BY julian, id");
    const auto windows = static_cast<unsigned int>(element->getOutputSeries().size());
    for (unsigned int window = 0; window < windows; ++window) {
      for (const auto& serie : element->getVectorOfSeries(window)) {
        const auto type = serieTypeIds.find(SerieTypeKey::of(*serie));
        if (type == serieTypeIds.end()) continue;
        query.bind(1, type->second);
        query.bind(2, static_cast<int64_t>(element->getDatabaseId()));
        query.bind(3, static_cast<int64_t>(window));
        if (!hash.empty()) query.bind(4, hash);
        fill(query, *serie);
      }
    }
  });
}

void DatabaseLoadReservoir::load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                                 bool loadResults) {
  DatabaseLoadElement::load(storage, serieTypeIds, loadResults);
  DatabaseException::guard([&] {
    SQLite::Statement query(storage,
                            "SELECT quota, area, volume FROM Cav WHERE elementID = ? AND "
                            "enabled = 1 ORDER BY line");
    query.bind(1, static_cast<int64_t>(getElement()->getDatabaseId()));
    std::vector<std::vector<double>> table;
    while (query.executeStep()) {
      table.push_back({query.getColumn(0).getDouble(), query.getColumn(1).getDouble(),
                       query.getColumn(2).getDouble()});
    }
    if (!table.empty())
      std::static_pointer_cast<Reservoir>(getElement())->getReservoirInfo().cav = table;
  });
}
