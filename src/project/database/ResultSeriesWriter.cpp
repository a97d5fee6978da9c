#include "project/database/ResultSeriesWriter.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <algorithm>

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

// Rows stored by one step of the insert. A step has a fixed cost (the statement's setup and
// reset, the binding of the run's columns) that a block pays once for all its rows.
constexpr std::size_t kBlockRows = 64;

// The insert of rows values: ?1 to ?6 are the columns that the rows of a series share, then the
// date, julian day and value of each row in turn.
std::string insertText(std::size_t rows) {
  std::string text =
      "INSERT INTO SerieOutput (windowid, timeStamp, timeStampHash, enabled, type, elementID, "
      "userID, date, julian, value) VALUES ";
  for (std::size_t row = 0; row < rows; ++row) {
    const std::size_t first = 7 + 3 * row;
    text += (row == 0 ? "" : ",") + std::string("(?1, ?2, ?3, 1, ?4, ?5, ?6, ?") +
            std::to_string(first) + ", ?" + std::to_string(first + 1) + ", ?" +
            std::to_string(first + 2) + ")";
  }
  return text;
}

}  // namespace

ResultSeriesWriter::ResultSeriesWriter(SQLite::Database& storage, std::string timeStamp,
                                       std::string timeStampHash)
    : storage(storage),
      timeStamp(std::move(timeStamp)),
      timeStampHash(std::move(timeStampHash)),
      userId(UserLiteSaver::defaultUserId(storage)),
      findUnit(storage, "SELECT id FROM Unit WHERE name = ? ORDER BY id"),
      findType(storage, "SELECT id FROM SerieType WHERE unit = ? AND type = ? ORDER BY id"),
      findElement(storage, "SELECT 1 FROM Element WHERE databaseId = ?"),
      retire(storage, retireStatement()) {}

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
  const auto& values = serie.getMapOfJulianToValues();
  for (auto row = values.begin(); row != values.end();) {
    const auto rows = std::min<std::size_t>(kBlockRows, values.end() - row);
    SQLite::Statement& insert = insertOf(rows);
    insert.bind(1, window);
    insert.bind(4, type);
    insert.bind(5, elementId);
    for (std::size_t i = 0; i < rows; ++i, ++row) {
      const int first = 7 + 3 * static_cast<int>(i);
      insert.bindNoCopy(first, dateText(row->first));
      insert.bind(first + 1, static_cast<int64_t>(row->first));
      insert.bind(first + 2, row->second);
    }
    insert.exec();
    insert.reset();
  }
  return true;
}

SQLite::Statement& ResultSeriesWriter::insertOf(std::size_t rows) {
  auto found = inserts.find(rows);
  if (found != inserts.end()) return *found->second;
  auto insert = std::make_unique<SQLite::Statement>(storage, insertText(rows));
  insert->bindNoCopy(2, timeStamp);
  insert->bindNoCopy(3, timeStampHash);
  insert->bind(6, userId);
  return *inserts.emplace(rows, std::move(insert)).first->second;
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
