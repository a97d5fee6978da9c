#include "project/database/StorageManager.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "project/database/SQLStorageAuxiliary.h"
#include "project/database/SQLiteOrmUtilities.h"

std::unique_ptr<SQLite::Database> StorageManager::createStorage(const std::string& path) {
  auto storage = SQLiteOrmUtilities::make(path);
  SQLStorageAuxiliary::sync(*storage);
  return storage;
}
