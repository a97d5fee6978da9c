#include "project/database/ResultSeriesWriter.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include "common/Serie.h"
#include "core/ConfigurationHeader.h"
#include "project/database/SerieSaver.h"
#include "project/database/UserLiteSaver.h"

namespace {

// The rows of a former run of the same element, type and window: found through the index on
// (type, elementID, windowid, enabled), then removed or kept as history.
std::string retireStatement() {
  const std::string where = " WHERE type = ?1 AND elementID = ?2 AND windowid = ?3 AND enabled = 1";
  return ConfigurationHeader::isSaveOnlyOneResults()
             ? "DELETE FROM SerieOutput" + where
             : "UPDATE SerieOutput SET enabled = 0" + where;
}

}  // namespace

ResultSeriesWriter::ResultSeriesWriter(SQLite::Database& storage, std::string timeStamp,
                                       std::string timeStampHash)
    : timeStamp(std::move(timeStamp)),
      timeStampHash(std::move(timeStampHash)),
      userId(UserLiteSaver::defaultUserId(storage)),
      findUnit(storage, "SELECT id FROM Unit WHERE name = ? ORDER BY id"),
      findType(storage, "SELECT id FROM SerieType WHERE unit = ? AND type = ? ORDER BY id"),
      findElement(storage, "SELECT 1 FROM Element WHERE databaseId = ?"),
      retire(storage, retireStatement()),
      insert(storage,
             "INSERT INTO SerieOutput (windowid, timeStamp, timeStampHash, enabled, type, "
             "elementID, userID, date, julian, value) VALUES (?1, ?2, ?3, 1, ?4, ?5, ?6, ?7, ?8, ?9)") {
  insert.bindNoCopy(2, this->timeStamp);
  insert.bindNoCopy(3, this->timeStampHash);
  insert.bind(6, userId);
}

bool ResultSeriesWriter::write(int64_t elementId, const Serie& serie, unsigned int windowId) {
  const int64_t type = serieTypeRow(serie);
  if (type == 0) return false;
  requireElement(elementId);
  const auto window = static_cast<int64_t>(windowId);
  retire.bind(1, type);
  retire.bind(2, elementId);
  retire.bind(3, window);
  retire.exec();
  retire.reset();
  insert.bind(1, window);
  insert.bind(4, type);
  insert.bind(5, elementId);
  for (const auto& [julian, value] : serie.getMapOfJulianToValues()) {
    insert.bindNoCopy(7, dateText(julian));
    insert.bind(8, static_cast<int64_t>(julian));
    insert.bind(9, value);
    insert.exec();
    insert.reset();
  }
  return true;
}

int64_t ResultSeriesWriter::serieTypeRow(const Serie& serie) {
  const auto key = std::make_pair(serie.getName(), serie.getUnit().getName());
  const auto known = typeRows.find(key);
  if (known != typeRows.end()) return known->second;
  int64_t row = 0;
  findUnit.bind(1, key.second);
  if (findUnit.executeStep()) {
    findType.bind(1, findUnit.getColumn(0).getInt64());
    findType.bind(2, key.first);
    if (findType.executeStep()) row = findType.getColumn(0).getInt64();
    findType.reset();
  }
  findUnit.reset();
  typeRows.emplace(key, row);
  return row;
}

void ResultSeriesWriter::requireElement(int64_t elementId) {
  if (elementId == knownElement) return;
  findElement.bind(1, elementId);
  const bool found = findElement.executeStep();
  findElement.reset();
  if (!found) throw SQLite::Exception("FOREIGN KEY constraint failed", SQLITE_CONSTRAINT);
  knownElement = elementId;
}

const std::string& ResultSeriesWriter::dateText(unsigned int julian) {
  auto found = dates.find(julian);
  if (found == dates.end()) found = dates.emplace(julian, SerieSaver::dateText(julian)).first;
  return found->second;
}
