#include "project/database/SerieTypeLiteSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "project/database/DatabaseSearch.h"
#include "vocabulary/Vocabulary.h"

std::string SerieTypeLiteSaver::directionToString(int direction) {
  if (direction == 0) return "input";
  return direction == 1 ? "output" : "Undefined";
}

SerieTypeIds SerieTypeLiteSaver::save(SQLite::Database& storage,
                                      const std::map<std::string, int64_t>& unitIds) {
  auto ids = DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(storage);
  SQLite::Statement insert(storage,
                           "INSERT INTO SerieType (type, direction, unit) VALUES (?, ?, ?)");
  for (const auto& row : Vocabulary::serieTypes().getRows()) {
    const std::string& unit = Vocabulary::of(Vocabulary::unitOf(row.getType())).getName();
    const SerieTypeKey key{row.getName(), unit};
    if (ids.count(key) != 0) continue;
    const bool input = Vocabulary::inputSerieTypes().count(row.getType()) != 0;
    insert.bind(1, key.type);
    insert.bind(2, directionToString(input ? 0 : 1));
    insert.bind(3, unitIds.at(unit));
    insert.exec();
    insert.reset();
    ids.emplace(key, storage.getLastInsertRowid());
  }
  return ids;
}
