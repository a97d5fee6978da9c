#include "project/database/DatabaseLoadElement.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cmath>

#include "core/Reservoir.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseLoadException.h"

namespace {

// Texts from the database are shown up to this length in a message.
constexpr std::size_t kShownLength = 40;

std::string shown(const SQLite::Column& column) {
  if (column.isNull()) return "NULL";
  std::string text = column.getString();
  if (text.size() > kShownLength) text = text.substr(0, kShownLength) + "...";
  return "'" + text + "'";
}

std::string placeOf(const char* table, const Element& element, const std::string& serie) {
  return std::string("table ") + table + ", element \"" + element.getName() + "\" (databaseId " +
         std::to_string(element.getDatabaseId()) + "), series \"" + serie + "\"";
}

// The number a column holds. Throws DatabaseLoadException when it holds a text, NULL, a blob or
// a value that is not finite: SQLite would read each of them as some number without a word.
double numberOf(const SQLite::Column& column, const std::string& where, const char* what) {
  const int type = column.getType();
  if ((type != SQLITE_INTEGER && type != SQLITE_FLOAT) || !std::isfinite(column.getDouble())) {
    throw DatabaseLoadException(where + ": " + what + " " + shown(column) +
                                " is not a finite number");
  }
  return column.getDouble();
}

// Sets the values of the rows the query gives (julian, value, date), ordered by julian, into
// serie. Throws DatabaseLoadException for a value that is no finite number, a day that is no
// whole number, or a date given twice.
void fill(SQLite::Statement& query, Serie& serie, const char* table, const Element& element) {
  const std::string place = placeOf(table, element, serie.getName());
  bool any = false;
  int64_t last = 0;
  while (query.executeStep()) {
    const std::string where = place + ", date " + shown(query.getColumn(2));
    if (query.getColumn(0).getType() != SQLITE_INTEGER) {
      throw DatabaseLoadException(where + ": julian day " + shown(query.getColumn(0)) +
                                  " is not a whole number");
    }
    const int64_t julian = query.getColumn(0).getInt64();
    if (any && julian == last) throw DatabaseLoadException(where + ": two values for one date");
    const double value = numberOf(query.getColumn(1), where, "value");
    serie.setValue(static_cast<unsigned int>(julian), value);
    any = true;
    last = julian;
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
                            "SELECT julian, value, date FROM SerieInput WHERE type = ? AND "
                            "elementID = ? AND enabled = 1 ORDER BY julian, id");
    for (const auto& serie : element->getVectorOfInputSeries()) {
      const auto type = serieTypeIds.find(SerieTypeKey::of(*serie));
      if (type == serieTypeIds.end()) continue;
      query.bind(1, type->second);
      query.bind(2, static_cast<int64_t>(element->getDatabaseId()));
      fill(query, *serie, "SerieInput", *element);
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
        storage, std::string("SELECT julian, value, date FROM SerieOutput WHERE type = ? AND "
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
        fill(query, *serie, "SerieOutput", *element);
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
    const std::string place = placeOf("Cav", *getElement(), "CAV");
    while (query.executeStep()) {
      const std::string where = place + ", line " + std::to_string(table.size());
      table.push_back({numberOf(query.getColumn(0), where, "quota"),
                       numberOf(query.getColumn(1), where, "area"),
                       numberOf(query.getColumn(2), where, "volume")});
    }
    if (!table.empty())
      std::static_pointer_cast<Reservoir>(getElement())->getReservoirInfo().cav = table;
  });
}
