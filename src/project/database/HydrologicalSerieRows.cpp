#include "project/database/HydrologicalSerieRows.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <SQLiteCpp/Savepoint.h>

#include "common/Serie.h"
#include "project/database/DatabaseException.h"
#include "project/database/SerieSaver.h"
#include "project/database/UserLiteSaver.h"

namespace {

void bindKey(SQLite::Statement& statement, int64_t elementId, unsigned int index,
             unsigned int month, bool monthly) {
  statement.bind(1, elementId);
  statement.bind(2, static_cast<int64_t>(index));
  if (monthly) statement.bind(3, static_cast<int64_t>(month));
}

}  // namespace

HydrologicalSerieRows::HydrologicalSerieRows(std::string table, bool monthly)
    : table(std::move(table)), monthly(monthly) {}

std::string HydrologicalSerieRows::keyText() const {
  return std::string(" WHERE elementID = ? AND \"index\" = ?") +
         (monthly ? " AND monthIndex = ?" : "");
}

void HydrologicalSerieRows::add(SQLite::Database& storage, int64_t elementId, unsigned int index,
                                unsigned int month, const Serie& serie) const {
  DatabaseException::guard([&] {
    const int64_t userId = UserLiteSaver::defaultUserId(storage);
    SQLite::Statement insert(storage, "INSERT INTO \"" + table + "\" (elementID, \"index\", " +
                                          (monthly ? "monthIndex, " : "") +
                                          "userID, date, julian, value) VALUES (?, ?, " +
                                          (monthly ? "?, " : "") + "?, ?, ?, ?)");
    const int first = monthly ? 4 : 3;
    for (const auto& entry : serie.getMapOfJulianToValues()) {
      bindKey(insert, elementId, index, month, monthly);
      insert.bind(first, userId);
      insert.bind(first + 1, SerieSaver::dateText(entry.first));
      insert.bind(first + 2, static_cast<int64_t>(entry.first));
      insert.bind(first + 3, entry.second);
      insert.exec();
      insert.reset();
    }
  });
}

void HydrologicalSerieRows::remove(SQLite::Database& storage, int64_t elementId, unsigned int index,
                                   unsigned int month) const {
  DatabaseException::guard([&] {
    SQLite::Statement erase(storage, "DELETE FROM \"" + table + "\"" + keyText());
    bindKey(erase, elementId, index, month, monthly);
    erase.exec();
  });
}

void HydrologicalSerieRows::removeAll(SQLite::Database& storage, int64_t elementId) const {
  DatabaseException::guard([&] {
    SQLite::Statement erase(storage, "DELETE FROM \"" + table + "\" WHERE elementID = ?");
    erase.bind(1, elementId);
    erase.exec();
  });
}

void HydrologicalSerieRows::replace(SQLite::Database& storage, int64_t elementId,
                                    unsigned int index, unsigned int month,
                                    const Serie& serie) const {
  DatabaseException::guard([&] {
    SQLite::Savepoint savepoint(storage, "hydrological_replace");
    remove(storage, elementId, index, month);
    add(storage, elementId, index, month, serie);
    savepoint.release();
  });
}

bool HydrologicalSerieRows::load(SQLite::Database& storage, int64_t elementId, unsigned int index,
                                 unsigned int month, Serie& serie) const {
  return DatabaseException::guard([&] {
    SQLite::Statement query(
        storage, "SELECT julian, value FROM \"" + table + "\"" + keyText() + " ORDER BY julian");
    bindKey(query, elementId, index, month, monthly);
    bool found = false;
    while (query.executeStep()) {
      serie.setValue(static_cast<unsigned int>(query.getColumn(0).getInt64()),
                     query.getColumn(1).getDouble());
      found = true;
    }
    return found;
  });
}
