#include "project/database/ElementTypeSaver.h"

#include "project/database/DatabaseSearch.h"
#include "project/database/NamedRows.h"
#include "vocabulary/Vocabulary.h"

std::map<ElementType, int64_t> ElementTypeSaver::save(SQLite::Database& storage) {
  std::vector<std::string> names;
  for (const auto& row : Vocabulary::elementTypes().getRows()) names.push_back(row.getName());
  NamedRows::insertMissing(storage, "ElementType", names);
  return DatabaseSearch::getMapElementsTypeDatabaseIDs(storage);
}
