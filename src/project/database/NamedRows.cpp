#include "project/database/NamedRows.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>

void NamedRows::insertMissing(SQLite::Database& storage, const std::string& table,
                              const std::vector<std::string>& names,
                              const std::map<std::string, std::string>& extra) {
  std::set<std::string> present;
  SQLite::Statement read(storage, "SELECT name FROM \"" + table + "\"");
  while (read.executeStep()) present.insert(read.getColumn(0).getString());
  std::string columns = "name", marks = "?";
  for (const auto& entry : extra) {
    columns += ", \"" + entry.first + "\"";
    marks += ", ?";
  }
  SQLite::Statement insert(
      storage, "INSERT INTO \"" + table + "\" (" + columns + ") VALUES (" + marks + ")");
  for (const auto& name : names) {
    if (!present.insert(name).second) continue;
    insert.bind(1, name);
    int position = 2;
    for (const auto& entry : extra) insert.bind(position++, entry.second);
    insert.exec();
    insert.reset();
  }
}
