#include "project/database/SQLStorage.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <stdexcept>

#include "project/database/DatabaseException.h"
#include "project/database/StorageManager.h"

namespace {

// As long as a writer of another connection may wait for the lock before it is called busy.
constexpr int kReadOnlyBusyTimeoutMs = 1000;

}  // namespace

SQLStorage::SQLStorage(std::unique_ptr<SQLite::Database> storage, std::string path)
    : storage(std::move(storage)), path(std::move(path)) {}

SQLStorage::~SQLStorage() = default;

std::unique_ptr<SQLStorage>& SQLStorage::instance() {
  static std::unique_ptr<SQLStorage> holder;
  return holder;
}

SQLStorage& SQLStorage::getInstance(const std::string& path) {
  auto opened = StorageManager::createStorage(path);
  instance().reset(new SQLStorage(std::move(opened), path));
  return *instance();
}

SQLStorage& SQLStorage::getInstanceReadOnly(const std::string& path) {
  auto opened = DatabaseException::guard([&] {
    return std::make_unique<SQLite::Database>(path, SQLite::OPEN_READONLY, kReadOnlyBusyTimeoutMs);
  });
  instance().reset(new SQLStorage(std::move(opened), path));
  return *instance();
}

SQLStorage& SQLStorage::getInstance() {
  if (!instance()) {
    throw std::logic_error("SQLStorage::getInstance(): no project database is open");
  }
  return *instance();
}

bool SQLStorage::hasInstance() { return instance() != nullptr; }

void SQLStorage::deleteInstance() { instance().reset(); }

void SQLStorage::reset() {
  temporaryStorage.reset();
  temporaryPath.clear();
  storage.reset();
  storage = StorageManager::createStorage(path);
}

SQLite::Database& SQLStorage::getTemporaryStorageRef() {
  if (!temporaryStorage) throw std::runtime_error("There is not such a resource");
  return *temporaryStorage;
}

void SQLStorage::createTemporaryStorage(const std::string& newPath) {
  temporaryStorage = StorageManager::createStorage(newPath);
  temporaryPath = newPath;
}

void SQLStorage::replaceOldStorage() {
  if (!temporaryStorage) throw std::runtime_error("There is not such a resource");
  storage = std::move(temporaryStorage);
  path = std::move(temporaryPath);
  temporaryPath.clear();
}

void SQLStorage::cleanTemporaryStorage() {
  temporaryStorage.reset();
  temporaryPath.clear();
}

void SQLStorage::requireWritable() {
  DatabaseException::guard([&] {
    storage->exec("BEGIN IMMEDIATE");
    storage->exec("ROLLBACK");
  });
}

void SQLStorage::rollbackInDatabase(SQLite::Database& storage) {
  // Outside a transaction SQLite is in autocommit mode and there is nothing to undo.
  if (sqlite3_get_autocommit(storage.getHandle()) == 0) storage.exec("ROLLBACK");
}
