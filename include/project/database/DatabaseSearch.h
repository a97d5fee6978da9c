#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/Date.h"
#include "project/database/SerieTypeKey.h"
#include "vocabulary/EnumTypes.h"

namespace SQLite {
class Database;
}
class Element;

// The queries that other parts of the program ask of the project database. Rows of the small
// tables are matched by name, never by number: another program of the family may number them
// otherwise. All throw DatabaseException on an SQLite failure.
class DatabaseSearch {
 public:
  // The databaseId of element's Element row, or 0 when the database has none.
  static int64_t getElementCodeInDatabase(SQLite::Database& storage, const Element& element);
  // The ElementType row of each element type whose name the table holds.
  static std::map<ElementType, int64_t> getMapElementsTypeDatabaseIDs(SQLite::Database& storage);
  // The element type of each ElementType row whose name the vocabulary knows.
  static std::map<int64_t, ElementType> getMapDatabaseIDsToElementsType(SQLite::Database& storage);
  // The Unit row of each unit name.
  static std::map<std::string, int64_t> getMapOfUnitDatabaseID(SQLite::Database& storage);
  // The SerieType row of each (type name, unit name) pair.
  static SerieTypeIds getMapOfSerieWithUnitToDatabaseID(SQLite::Database& storage);
  // The Users row of each user name.
  static std::map<std::string, int64_t> getMapOfUserDatabaseID(SQLite::Database& storage);
  // The hashes of the stored runs of the scenario with that databaseId, oldest run first.
  static std::vector<std::string> getHashesOfResultsByScenID(SQLite::Database& storage,
                                                             int64_t scenarioId);
  // The first / last date of the results of a run. Throw std::invalid_argument
  // "DatabaseSearch::getMinDateOfHash(): unknown hash" (or getMaxDateOfHash) for a hash without
  // rows.
  static Date getMinDateOfHash(SQLite::Database& storage, const std::string& hash);
  static Date getMaxDateOfHash(SQLite::Database& storage, const std::string& hash);

 private:
  static Date dateOfHash(SQLite::Database& storage, const std::string& hash,
                         const std::string& aggregate, const std::string& method);
};
