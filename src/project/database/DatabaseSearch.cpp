#include "project/database/DatabaseSearch.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "core/Element.h"
#include "project/database/DatabaseException.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::map<std::string, int64_t> idsByName(SQLite::Database& storage, const std::string& table) {
  std::map<std::string, int64_t> ids;
  SQLite::Statement query(storage, "SELECT id, name FROM \"" + table + "\" ORDER BY id");
  // The first of two rows with one name is the one that counts, as in every reader.
  while (query.executeStep()) ids.emplace(query.getColumn(1).getString(), query.getColumn(0));
  return ids;
}

}  // namespace

int64_t DatabaseSearch::getElementCodeInDatabase(SQLite::Database& storage,
                                                 const Element& element) {
  return DatabaseException::guard([&]() -> int64_t {
    SQLite::Statement query(storage, "SELECT databaseId FROM Element WHERE databaseId = ?");
    query.bind(1, static_cast<int64_t>(element.getDatabaseId()));
    return query.executeStep() ? query.getColumn(0).getInt64() : 0;
  });
}

std::map<ElementType, int64_t> DatabaseSearch::getMapElementsTypeDatabaseIDs(
    SQLite::Database& storage) {
  std::map<ElementType, int64_t> ids;
  for (const auto& entry : getMapDatabaseIDsToElementsType(storage)) {
    ids.emplace(entry.second, entry.first);
  }
  return ids;
}

std::map<int64_t, ElementType> DatabaseSearch::getMapDatabaseIDsToElementsType(
    SQLite::Database& storage) {
  return DatabaseException::guard([&] {
    std::map<int64_t, ElementType> types;
    for (const auto& entry : idsByName(storage, "ElementType")) {
      const auto* row = Vocabulary::elementTypes().findByName(entry.first);
      if (row != nullptr) types.emplace(entry.second, row->getType());
    }
    return types;
  });
}

std::map<std::string, int64_t> DatabaseSearch::getMapOfUnitDatabaseID(SQLite::Database& storage) {
  return DatabaseException::guard([&] { return idsByName(storage, "Unit"); });
}

std::map<std::string, int64_t> DatabaseSearch::getMapOfUserDatabaseID(SQLite::Database& storage) {
  return DatabaseException::guard([&] { return idsByName(storage, "Users"); });
}

SerieTypeIds DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(SQLite::Database& storage) {
  return DatabaseException::guard([&] {
    SerieTypeIds ids;
    SQLite::Statement query(storage,
                            "SELECT SerieType.id, SerieType.type, Unit.name FROM SerieType "
                            "JOIN Unit ON Unit.id = SerieType.unit ORDER BY SerieType.id");
    while (query.executeStep()) {
      ids.emplace(SerieTypeKey{query.getColumn(1).getString(), query.getColumn(2).getString()},
                  query.getColumn(0).getInt64());
    }
    return ids;
  });
}

std::vector<std::string> DatabaseSearch::getHashesOfResultsByScenID(SQLite::Database& storage,
                                                                    int64_t scenarioId) {
  return DatabaseException::guard([&] {
    std::vector<std::string> hashes;
    SQLite::Statement query(storage,
                            "SELECT SerieOutput.timeStampHash FROM SerieOutput JOIN Element ON "
                            "Element.databaseId = SerieOutput.elementID WHERE Element.scenId = ? "
                            "GROUP BY SerieOutput.timeStampHash ORDER BY MIN(SerieOutput.id)");
    query.bind(1, scenarioId);
    while (query.executeStep()) hashes.push_back(query.getColumn(0).getString());
    return hashes;
  });
}

Date DatabaseSearch::getMinDateOfHash(SQLite::Database& storage, const std::string& hash) {
  return dateOfHash(storage, hash, "MIN", "getMinDateOfHash");
}

Date DatabaseSearch::getMaxDateOfHash(SQLite::Database& storage, const std::string& hash) {
  return dateOfHash(storage, hash, "MAX", "getMaxDateOfHash");
}

Date DatabaseSearch::dateOfHash(SQLite::Database& storage, const std::string& hash,
                                const std::string& aggregate, const std::string& method) {
  const int64_t julian = DatabaseException::guard([&]() -> int64_t {
    SQLite::Statement query(
        storage, "SELECT " + aggregate + "(julian) FROM SerieOutput WHERE timeStampHash = ?");
    query.bind(1, hash);
    query.executeStep();
    return query.getColumn(0).isNull() ? -1 : query.getColumn(0).getInt64();
  });
  if (julian < 0) {
    throw std::invalid_argument("DatabaseSearch::" + method + "(): unknown hash");
  }
  unsigned char hour = 0;
  return Date::gregorian(static_cast<unsigned int>(julian), hour);
}
