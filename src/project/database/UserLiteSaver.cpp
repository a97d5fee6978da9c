#include "project/database/UserLiteSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <vector>

#include "project/database/DatabaseSearch.h"

namespace {

const std::vector<std::string>& defaultUsers() {
  static const std::vector<std::string> users = {"kova", "convidado"};
  return users;
}

}  // namespace

const std::string& UserLiteSaver::defaultUserName() { return defaultUsers().front(); }

std::map<std::string, int64_t> UserLiteSaver::save(SQLite::Database& storage) {
  auto ids = DatabaseSearch::getMapOfUserDatabaseID(storage);
  SQLite::Statement insert(storage, "INSERT INTO Users (name, password) VALUES (?, ?)");
  for (const auto& name : defaultUsers()) {
    if (ids.count(name) != 0) continue;
    insert.bind(1, name);
    insert.bind(2, name);
    insert.exec();
    insert.reset();
    ids.emplace(name, storage.getLastInsertRowid());
  }
  return ids;
}

int64_t UserLiteSaver::defaultUserId(SQLite::Database& storage) {
  return save(storage).at(defaultUserName());
}
