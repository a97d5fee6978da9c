#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}
class Element;
class Scenario;
class Serie;

// Every goal series that an element of a priority scenario keeps in its settings: one per
// hydrological state, one per zone of a reservoir, one per zone of each month slot. Elements
// whose settings are not priority settings have none.
class DatabaseHydrologicalSeries {
 public:
  // Writes every goal series of element, keyed by its databaseId. Throws DatabaseException.
  static void saveAll(SQLite::Database& storage, const Scenario& scenario, const Element& element);
  // Sets the stored values into every goal series of element; series without rows stay as they
  // are. Throws DatabaseException.
  static void loadAll(SQLite::Database& storage, const Scenario& scenario, const Element& element);
  // Replaces the stored rows of serie when it is one of element's goal series (the very object);
  // false, nothing written, when it is not. Throws DatabaseException.
  static bool replace(SQLite::Database& storage, const Scenario& scenario, const Element& element,
                      const Serie& serie);
};
