#include "project/database/DatabaseUpdate.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/Savepoint.h>

#include <functional>
#include <memory>
#include <vector>

#include "common/Calendar.h"
#include "common/Serie.h"
#include "core/ConfigurationHeader.h"
#include "core/Reservoir.h"
#include "project/database/DatabaseException.h"
#include "project/database/ReservoirCAVSaver.h"
#include "project/database/ResultSeriesWriter.h"
#include "project/database/SerieSaver.h"
#include "project/database/UserLiteSaver.h"

namespace {

std::vector<std::shared_ptr<Serie>> only(const Serie& serie) {
  return {std::make_shared<Serie>(serie)};
}

// Runs a change inside a savepoint, released whatever happens. SQLite::Savepoint rolls back on
// failure but leaves the savepoint open, and an outermost savepoint left open is a transaction
// left open, which refuses the next BEGIN of the connection.
bool inSavepoint(SQLite::Database& storage, const std::string& name,
                 const std::function<bool()>& change) {
  storage.exec("SAVEPOINT " + name);
  try {
    const bool done = change();
    storage.exec("RELEASE " + name);
    return done;
  } catch (...) {
    storage.exec("ROLLBACK TO " + name);
    storage.exec("RELEASE " + name);
    throw;
  }
}

}  // namespace

int64_t DatabaseUpdate::serieTypeRow(SQLite::Database& storage, const Serie& serie) {
  SQLite::Statement unit(storage, "SELECT id FROM Unit WHERE name = ? ORDER BY id");
  unit.bind(1, serie.getUnit().getName());
  if (!unit.executeStep()) return 0;
  SQLite::Statement type(storage,
                         "SELECT id FROM SerieType WHERE unit = ? AND type = ? ORDER BY id");
  type.bind(1, unit.getColumn(0).getInt64());
  type.bind(2, serie.getName());
  return type.executeStep() ? type.getColumn(0).getInt64() : 0;
}

void DatabaseUpdate::retire(SQLite::Database& storage, const std::string& table,
                            const std::string& where, bool keep, int64_t type, int64_t elementId,
                            int64_t windowId) {
  SQLite::Statement statement(
      storage, (keep ? "UPDATE " + table + " SET enabled = 0" : "DELETE FROM " + table) +
                   " WHERE enabled = 1 AND " + where);
  statement.bind(1, type);
  statement.bind(2, elementId);
  if (windowId >= 0) statement.bind(3, windowId);
  statement.exec();
}

bool DatabaseUpdate::updateInputSerie(SQLite::Database& storage, int64_t elementId,
                                      const Serie& serie) {
  return DatabaseException::guard([&] {
    return inSavepoint(storage, "update_input", [&] {
      const int64_t type = serieTypeRow(storage, serie);
      if (type == 0) return false;
      retire(storage, "SerieInput", "type = ? AND elementID = ?",
             ConfigurationHeader::isKeepInputSerieHistorical(), type, elementId, -1);
      const auto ids = SerieTypeIds{{SerieTypeKey::of(serie), type}};
      SerieSaver::saveInputSeries(storage, only(serie), ids, Calendar::getTimeStamp(), elementId,
                                  UserLiteSaver::defaultUserId(storage));
      return true;
    });
  });
}

bool DatabaseUpdate::updateOutputSerie(SQLite::Database& storage, int64_t elementId,
                                       const Serie& serie, unsigned int windowId,
                                       const std::string& timeStamp,
                                       const std::string& timeStampHash) {
  return DatabaseException::guard([&] {
    return inSavepoint(storage, "update_output", [&] {
      ResultSeriesWriter writer(storage, timeStamp, timeStampHash);
      return writer.write(elementId, serie, windowId);
    });
  });
}

void DatabaseUpdate::updateCAV(SQLite::Database& storage, const Reservoir& reservoir) {
  DatabaseException::guard([&] {
    SQLite::Savepoint savepoint(storage, "update_cav");
    const int64_t elementId = reservoir.getDatabaseId();
    SQLite::Statement retire(storage,
                             "UPDATE Cav SET enabled = 0 WHERE enabled = 1 AND elementID = ?");
    retire.bind(1, elementId);
    retire.exec();
    ReservoirCAVSaver::save(storage, reservoir, Calendar::getTimeStamp(), elementId,
                            UserLiteSaver::defaultUserId(storage));
    savepoint.release();
  });
}

int64_t DatabaseUpdate::elementsRowsSize(SQLite::Database& storage, int64_t elementId) {
  return DatabaseException::guard([&] {
    SQLite::Statement count(storage,
                            "SELECT (SELECT COUNT(*) FROM SerieInput WHERE enabled = 1 AND "
                            "elementID = ?1) + (SELECT COUNT(*) FROM SerieOutput WHERE "
                            "enabled = 1 AND elementID = ?1)");
    count.bind(1, elementId);
    count.executeStep();
    return count.getColumn(0).getInt64();
  });
}

void DatabaseUpdate::updateAllResultSeriesToOutDated(SQLite::Database& storage,
                                                     int64_t scenarioId) {
  DatabaseException::guard([&] {
    SQLite::Statement outdate(storage,
                              "UPDATE SerieOutput SET enabled = 0 WHERE enabled = 1 AND elementID "
                              "IN (SELECT databaseId FROM Element WHERE scenId = ?)");
    outdate.bind(1, scenarioId);
    outdate.exec();
  });
}
