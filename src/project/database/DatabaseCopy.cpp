#include "project/database/DatabaseCopy.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseException.h"
#include "project/database/ElementsCopy.h"
#include "project/database/FileUtils.h"
#include "project/database/SQLStorage.h"
#include "project/database/SceneryCopy.h"
#include "project/database/TableCopy.h"
#include "project/database/UnitCopy.h"
#include "project/database/UsersCopy.h"

namespace {

long totalTables() {
  return static_cast<long>(UnitCopy::tables().size() + UsersCopy::tables().size() +
                           SceneryCopy::tables().size() + ElementsCopy::tables().size());
}

}  // namespace

bool DatabaseCopy::copyDatabase(SQLite::Database& storage, const std::string& path, int64_t userId,
                                const Progress& progress) {
  if (FileUtils::isSameFile(storage.getFilename(), path)) {
    throw std::invalid_argument(
        "DatabaseCopy::copyDatabase(): the copy would overwrite its source");
  }
  SQLStorage& holder = SQLStorage::getInstance();
  holder.createTemporaryStorage(path);
  try {
    if (copyRows(storage, holder.getTemporaryStorageRef(), userId, progress)) return true;
  } catch (...) {
    holder.cleanTemporaryStorage();
    throw;
  }
  holder.cleanTemporaryStorage();
  return false;
}

bool DatabaseCopy::copyRows(SQLite::Database& source, SQLite::Database& target, int64_t userId,
                            const Progress& progress) {
  try {
    DatabaseException::guard([&] {
      TableCopy copy(target, source.getFilename(), progress, totalTables());
      SQLite::Transaction transaction(target, SQLite::TransactionBehavior::IMMEDIATE);
      copy.clearTarget();
      UnitCopy::copyUnits(copy);
      UsersCopy::copyUsers(target, copy, userId);
      SceneryCopy::copyScenery(copy);
      ElementsCopy::copyElements(copy);
      transaction.commit();
    });
    return true;
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    return false;
  }
}
