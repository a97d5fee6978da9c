#include "project/database/SerieSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdio>

#include "common/Serie.h"

namespace {

// Binds the columns the two series tables share, from position first on, and writes the row.
void insertValue(SQLite::Statement& insert, int first, unsigned int julian, double value) {
  insert.bind(first, SerieSaver::dateText(julian));
  insert.bind(first + 1, static_cast<int64_t>(julian));
  insert.bind(first + 2, value);
  insert.exec();
  insert.reset();
}

}  // namespace

std::string SerieSaver::dateText(unsigned int julian) {
  unsigned char hour = 0;
  const Date date = Date::gregorian(julian, hour);
  // Formatting by hand: the date library's facets cost more than the row insert itself.
  char text[16];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u", date.getYear(), date.getMonth(),
                date.getDay());
  return text;
}

void SerieSaver::saveInputSeries(SQLite::Database& storage,
                                 const std::vector<std::shared_ptr<Serie>>& series,
                                 const SerieTypeIds& serieTypeIds, const std::string& timeStamp,
                                 int64_t elementId, int64_t userId) {
  SQLite::Statement insert(storage,
                           "INSERT INTO SerieInput (timeStamp, enabled, type, elementID, userID, "
                           "date, julian, value) VALUES (?, 1, ?, ?, ?, ?, ?, ?)");
  for (const auto& serie : series) {
    const int64_t type = serieTypeIds.at(SerieTypeKey::of(*serie));
    insert.bind(1, timeStamp);
    insert.bind(2, type);
    insert.bind(3, elementId);
    insert.bind(4, userId);
    for (const auto& entry : serie->getMapOfJulianToValues()) {
      insertValue(insert, 5, entry.first, entry.second);
    }
  }
}

void SerieSaver::saveOuputSeries(SQLite::Database& storage,
                                 const std::vector<std::shared_ptr<Serie>>& series,
                                 const SerieTypeIds& serieTypeIds, const std::string& timeStamp,
                                 const std::string& timeStampHash, int64_t elementId,
                                 int64_t userId, unsigned int windowId) {
  SQLite::Statement insert(storage,
                           "INSERT INTO SerieOutput (windowid, timeStamp, timeStampHash, enabled, "
                           "type, elementID, userID, date, julian, value) "
                           "VALUES (?, ?, ?, 1, ?, ?, ?, ?, ?, ?)");
  for (const auto& serie : series) {
    const int64_t type = serieTypeIds.at(SerieTypeKey::of(*serie));
    insert.bind(1, static_cast<int64_t>(windowId));
    insert.bind(2, timeStamp);
    insert.bind(3, timeStampHash);
    insert.bind(4, type);
    insert.bind(5, elementId);
    insert.bind(6, userId);
    for (const auto& entry : serie->getMapOfJulianToValues()) {
      insertValue(insert, 7, entry.first, entry.second);
    }
  }
}
