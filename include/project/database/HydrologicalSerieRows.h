#pragma once

#include <cstdint>
#include <string>

namespace SQLite {
class Database;
}
class Serie;

// The rows of one of the three hydrological series tables: one row per date of a series, keyed
// by the element's databaseId, the state or zone index and, in the monthly table, the month
// slot (0 = January). Every method throws DatabaseException on an SQLite failure.
class HydrologicalSerieRows {
 public:
  // monthly: whether the table has the monthIndex column.
  HydrologicalSerieRows(std::string table, bool monthly);

  // Writes serie's values under the key.
  void add(SQLite::Database& storage, int64_t elementId, unsigned int index, unsigned int month,
           const Serie& serie) const;
  // Removes the rows of the key.
  void remove(SQLite::Database& storage, int64_t elementId, unsigned int index,
              unsigned int month) const;
  // Removes every row of the element.
  void removeAll(SQLite::Database& storage, int64_t elementId) const;
  // Replaces the rows of the key by serie's values, in one transaction.
  void replace(SQLite::Database& storage, int64_t elementId, unsigned int index, unsigned int month,
               const Serie& serie) const;
  // Sets into serie the stored values of the key; false when there are none.
  bool load(SQLite::Database& storage, int64_t elementId, unsigned int index, unsigned int month,
            Serie& serie) const;

 private:
  // WHERE text of a key, binding elementID, index and (monthly) monthIndex from position 1.
  std::string keyText() const;

  std::string table;
  bool monthly;
};
