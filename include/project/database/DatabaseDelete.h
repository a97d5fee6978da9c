#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}
class Element;

// Removes scenarios and elements with every row that hangs on them: series of both directions,
// curves and hydrological series. Each removal is one transaction and throws DatabaseException
// on an SQLite failure, nothing removed then.
class DatabaseDelete {
 public:
  // Removes the scenario with that databaseId and its elements.
  static void deleteScenByID(SQLite::Database& storage, int64_t scenarioId);
  // Removes the element with that databaseId; element (may be null) loses its databaseId.
  static void deleteElement(SQLite::Database& storage, int64_t elementId, Element* element);

 private:
  // Removes the rows of the tables that hang on the elements chosen by where (one bound
  // integer), then those elements.
  static void deleteElementsWhere(SQLite::Database& storage, const char* where, int64_t key);
};
