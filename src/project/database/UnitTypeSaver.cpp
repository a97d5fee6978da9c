#include "project/database/UnitTypeSaver.h"

#include "project/database/DatabaseSearch.h"
#include "project/database/NamedRows.h"
#include "vocabulary/Vocabulary.h"

std::map<std::string, int64_t> UnitTypeSaver::save(SQLite::Database& storage) {
  std::vector<std::string> names;
  for (const auto& row : Vocabulary::units().getRows()) names.push_back(row.getName());
  NamedRows::insertMissing(storage, "Unit", names);
  return DatabaseSearch::getMapOfUnitDatabaseID(storage);
}
