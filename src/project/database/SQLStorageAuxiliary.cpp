#include "project/database/SQLStorageAuxiliary.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>
#include <string>

#include "project/database/DatabaseException.h"
#include "project/database/SQLiteOrmUtilities.h"

namespace {

std::set<std::string> columnsOf(SQLite::Database& storage, const std::string& table) {
  std::set<std::string> names;
  SQLite::Statement query(storage, "PRAGMA table_info(\"" + table + "\")");
  while (query.executeStep()) names.insert(query.getColumn(1).getString());
  return names;
}

std::string neutralDefault(const std::string& type) {
  if (type == "TEXT") return "''";
  return type == "REAL" ? "0.0" : "0";
}

void syncTable(SQLite::Database& storage, const SQLiteOrmUtilities::Table& table) {
  if (!storage.tableExists(table.name)) {
    storage.exec(SQLiteOrmUtilities::createTableText(table));
    return;
  }
  const auto present = columnsOf(storage, table.name);
  for (std::size_t i = 1; i < table.columns.size(); ++i) {
    const auto& column = table.columns[i];
    if (present.count(column.name) != 0) continue;
    storage.exec("ALTER TABLE \"" + table.name + "\" ADD COLUMN " +
                 SQLiteOrmUtilities::columnText(column, false) + " DEFAULT " +
                 neutralDefault(column.type));
  }
}

}  // namespace

void SQLStorageAuxiliary::sync(SQLite::Database& storage) {
  DatabaseException::guard([&] {
    SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
    for (const auto& table : SQLiteOrmUtilities::tables()) syncTable(storage, table);
    for (const auto& index : SQLiteOrmUtilities::indexes()) {
      storage.exec(SQLiteOrmUtilities::createIndexText(index));
    }
    transaction.commit();
  });
}
