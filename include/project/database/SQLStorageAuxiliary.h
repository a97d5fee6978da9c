#pragma once

namespace SQLite {
class Database;
}

// Brings a database to the schema of SQLiteOrmUtilities without losing rows: missing tables and
// indexes are created, and a table that lacks columns gets them with a neutral default (0, 0.0 or
// the empty text), since NOT NULL columns can only be added with one.
class SQLStorageAuxiliary {
 public:
  // Synchronises storage in one transaction. Throws DatabaseException on an SQLite failure (a
  // file that is not a database among them); nothing changes then.
  static void sync(SQLite::Database& storage);
};
