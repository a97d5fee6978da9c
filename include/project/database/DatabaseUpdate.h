#pragma once

#include <cstdint>
#include <string>

namespace SQLite {
class Database;
}
class Reservoir;
class Serie;

// Changes stored series and curves. A changed input series replaces the enabled rows of its
// element and type: with ConfigurationHeader::isKeepInputSerieHistorical() the former rows stay
// as history (enabled 0), otherwise they go. A run's result series replaces the enabled rows of
// its element, type and window the same way, by ConfigurationHeader::isSaveOnlyOneResults(): with
// it the former rows go, without it they stay (enabled 0) under the hash of their run, where
// DatabaseLoadScenario::loadResultsByHash finds them. Every method throws DatabaseException on an
// SQLite failure.
class DatabaseUpdate {
 public:
  // Stores serie as the input of element elementId; false when the database has no row for its
  // unit or for its (type, unit) pair.
  static bool updateInputSerie(SQLite::Database& storage, int64_t elementId, const Serie& serie);
  // Stores serie as the result of element elementId in window windowId of the run told by
  // timeStampHash; false as updateInputSerie. A run stores all its series through one
  // ResultSeriesWriter instead (DatabaseScenarioStore::storeResults).
  static bool updateOutputSerie(SQLite::Database& storage, int64_t elementId, const Serie& serie,
                                unsigned int windowId, const std::string& timeStamp,
                                const std::string& timeStampHash);
  // Replaces the stored curve of reservoir (by its databaseId), keeping the former one as
  // history (enabled 0) like an input series.
  static void updateCAV(SQLite::Database& storage, const Reservoir& reservoir);
  // The number of enabled input and result rows of element elementId.
  static int64_t elementsRowsSize(SQLite::Database& storage, int64_t elementId);
  // Marks every result row of the scenario with that databaseId as outdated (enabled 0): the
  // scenario changed, so its results no longer answer to it.
  static void updateAllResultSeriesToOutDated(SQLite::Database& storage, int64_t scenarioId);

 private:
  // The SerieType row of serie, or 0 when its unit or pair is missing.
  static int64_t serieTypeRow(SQLite::Database& storage, const Serie& serie);
  // Keeps (enabled 0) or removes the enabled rows of table that match where.
  static void retire(SQLite::Database& storage, const std::string& table, const std::string& where,
                     bool keep, int64_t type, int64_t elementId, int64_t windowId);
};
