#pragma once

#include <memory>
#include <string>
#include <vector>

namespace SQLite {
class Database;
}

// The schema of the project database and the opening of a connection to it. Every column is
// NOT NULL; the names, misspellings included, are the file format shared with the other programs
// that read these databases.
class SQLiteOrmUtilities {
 public:
  struct Column {
    std::string name;
    std::string type;  // INTEGER, REAL or TEXT
  };
  struct ForeignKey {
    std::string column;
    std::string table;
    std::string referenced;
  };
  struct Table {
    std::string name;
    std::vector<Column> columns;  // the first is the primary key
    std::vector<ForeignKey> foreignKeys;
  };
  struct Index {
    std::string name;
    std::string table;
    std::vector<std::string> columns;
  };

  // The tables in the order of the storage.
  static const std::vector<Table>& tables();
  // The indexes, by name.
  static const std::vector<Index>& indexes();
  // CREATE TABLE text of table.
  static std::string createTableText(const Table& table);
  // CREATE INDEX IF NOT EXISTS text of index.
  static std::string createIndexText(const Index& index);
  // The SQL text of a column definition inside CREATE TABLE or ALTER TABLE ADD COLUMN.
  static std::string columnText(const Column& column, bool primaryKey);

  // A connection to the database at path, created when missing, with foreign keys enforced and
  // a short wait on a busy database. Throws DatabaseException when SQLite refuses the file.
  static std::unique_ptr<SQLite::Database> make(const std::string& path);
};
