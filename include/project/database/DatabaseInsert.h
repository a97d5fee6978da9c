#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "vocabulary/EnumTypes.h"

namespace SQLite {
class Database;
}
class Element;
class Scenario;

// Adds the rows of new scenarios and elements.
class DatabaseInsert {
 public:
  // Inserts the enabled row of scenario in the open project database and gives the scenario its
  // key as databaseId. Throws DatabaseException on failure, std::logic_error without an open
  // database.
  static int64_t insertSceneryEntryInDatabase(Scenario& scenario);
  // As above in storage.
  static int64_t insertSceneryEntryInDatabase(SQLite::Database& storage, Scenario& scenario);
  // Inserts element's enabled row under the scenario with that databaseId, with its input
  // series (and a reservoir's curve), and gives the element its key as databaseId. Throws
  // DatabaseException on failure.
  static int64_t insertNewElementInSceneryDatabase(SQLite::Database& storage, int64_t scenarioId,
                                                   Element& element);
  // The Element row alone, with the ElementType row of its type from elementTypeIds. Throws
  // std::out_of_range for a type missing from it, SQLite's exception on failure.
  static int64_t insertElementRow(SQLite::Database& storage, int64_t scenarioId, Element& element,
                                  const std::map<ElementType, int64_t>& elementTypeIds);
};
