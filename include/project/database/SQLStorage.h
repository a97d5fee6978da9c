#pragma once

#include <memory>
#include <string>

namespace SQLite {
class Database;
}

// The single holder of the open project database. During a save-as it also holds the database
// being written at the new path, which replaces the current one once the copy is complete.
class SQLStorage {
 public:
  // Replaces the single instance by one open on path (created and given the schema when
  // missing). Throws DatabaseException when the file cannot be opened as the project database;
  // the former instance is kept then.
  static SQLStorage& getInstance(const std::string& path);
  // Replaces the single instance by one open on path for reading only: the file is neither
  // created nor given a missing part of the schema, and no lock beyond a reader's is taken.
  // Throws DatabaseException when the file is missing or cannot be opened.
  static SQLStorage& getInstanceReadOnly(const std::string& path);
  // The current instance. Throws std::logic_error "SQLStorage::getInstance(): no project
  // database is open" before any open.
  static SQLStorage& getInstance();
  static bool hasInstance();
  // Closes the databases and forgets the instance.
  static void deleteInstance();

  // Reopens the current database and drops the temporary one: other connections' changes and
  // any pending state of this one are left behind.
  void reset();
  SQLite::Database& getStorageRef() { return *storage; }
  const std::string& getPath() const { return path; }
  // The database of a save-as in progress. Throws std::runtime_error "There is not such a
  // resource" without one.
  SQLite::Database& getTemporaryStorageRef();
  // Opens (creating) the database of a save-as at path. Throws as getInstance(path).
  void createTemporaryStorage(const std::string& newPath);
  // The temporary database becomes the current one. Throws std::runtime_error "There is not
  // such a resource" without one.
  void replaceOldStorage();
  // Closes the temporary database, if any, leaving its file as it is.
  void cleanTemporaryStorage();
  // Throws DatabaseException (the locked text when another connection is writing) unless this
  // connection could write now: it takes and at once gives back the writer's lock.
  void requireWritable();
  // Rolls back the transaction open on storage, if any.
  static void rollbackInDatabase(SQLite::Database& storage);

  ~SQLStorage();
  SQLStorage(const SQLStorage&) = delete;
  SQLStorage& operator=(const SQLStorage&) = delete;

 private:
  SQLStorage(std::unique_ptr<SQLite::Database> storage, std::string path);

  static std::unique_ptr<SQLStorage>& instance();

  std::unique_ptr<SQLite::Database> storage;
  std::string path;
  std::unique_ptr<SQLite::Database> temporaryStorage;
  std::string temporaryPath;
};
