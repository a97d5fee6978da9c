#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace SQLite {
class Database;
}

// Fills the Users table with the two users every project database has; rows are attributed to
// the first.
class UserLiteSaver {
 public:
  // The user who owns the rows this program writes.
  static const std::string& defaultUserName();
  // Adds the default users the table lacks (each password equal to the name) and gives the row of
  // every user name. Throws SQLite's exception on failure.
  static std::map<std::string, int64_t> save(SQLite::Database& storage);
  // The row of the default user, adding the default users when missing.
  static int64_t defaultUserId(SQLite::Database& storage);
};
