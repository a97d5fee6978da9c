#include "project/database/UsersCopy.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "project/database/TableCopy.h"

const std::vector<std::string>& UsersCopy::tables() {
  static const std::vector<std::string> names = {"Users"};
  return names;
}

void UsersCopy::copyUsers(SQLite::Database& target, TableCopy& copy, int64_t userId) {
  for (const auto& table : tables()) copy.copy(table);
  SQLite::Statement user(target, "SELECT 1 FROM main.Users WHERE id = ?");
  user.bind(1, userId);
  if (!user.executeStep()) throw std::invalid_argument("UsersCopy::copyUsers(): unknown userId");
}
