#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "project/database/SerieTypeKey.h"

namespace SQLite {
class Database;
}
class Serie;

// Writes series values as rows: one enabled row per (julian day, value) pair, dated in
// "%Y-%m-%d" and by its julian day.
class SerieSaver {
 public:
  // The "%Y-%m-%d" text of a julian day number.
  static std::string dateText(unsigned int julian);

  // Writes the input series of element elementId. Throws std::out_of_range when a series' (type,
  // unit) pair has no row in serieTypeIds, SQLite's exception on failure.
  static void saveInputSeries(SQLite::Database& storage,
                              const std::vector<std::shared_ptr<Serie>>& series,
                              const SerieTypeIds& serieTypeIds, const std::string& timeStamp,
                              int64_t elementId, int64_t userId);
  // Writes the result series of one window of a run told by timeStampHash. Throws as
  // saveInputSeries.
  static void saveOuputSeries(SQLite::Database& storage,
                              const std::vector<std::shared_ptr<Serie>>& series,
                              const SerieTypeIds& serieTypeIds, const std::string& timeStamp,
                              const std::string& timeStampHash, int64_t elementId, int64_t userId,
                              unsigned int windowId);
};
