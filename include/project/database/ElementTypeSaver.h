#pragma once

#include <cstdint>
#include <map>

#include "vocabulary/EnumTypes.h"

namespace SQLite {
class Database;
}

// Fills the ElementType table from the vocabulary.
class ElementTypeSaver {
 public:
  // Adds the element types the table lacks and gives the row of every type. Throws SQLite's
  // exception on failure (the caller's transaction turns it into DatabaseException).
  static std::map<ElementType, int64_t> save(SQLite::Database& storage);
};
