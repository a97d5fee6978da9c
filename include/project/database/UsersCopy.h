#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace SQLite {
class Database;
}
class TableCopy;

// The part of a database copy (DatabaseCopy) that carries the users.
class UsersCopy {
 public:
  // The tables it copies.
  static const std::vector<std::string>& tables();
  // Copies them through copy into target, and checks that the user on whose behalf the copy is
  // made is among them. Throws std::invalid_argument "UsersCopy::copyUsers(): unknown userId"
  // when not, and as TableCopy::copy.
  static void copyUsers(SQLite::Database& target, TableCopy& copy, int64_t userId);
};
