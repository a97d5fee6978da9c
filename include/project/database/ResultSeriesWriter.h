#pragma once

#include <SQLiteCpp/Statement.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>

class Serie;

// Writes the result series of one run into SerieOutput through statements prepared once: a run
// stores millions of rows, and preparing, looking up or formatting anything per series or per row
// would cost more than the rows themselves. A series goes in blocks of rows per statement. Each
// series replaces the enabled rows of its element, type and window: with
// ConfigurationHeader::isSaveOnlyOneResults() the former rows go, without it they stay as history
// (enabled 0). The caller holds the transaction; every SQLite failure is an SQLite::Exception.
class ResultSeriesWriter {
 public:
  ResultSeriesWriter(SQLite::Database& storage, std::string timeStamp, std::string timeStampHash);

  // Stores serie as the result of element elementId in window windowId; false when the database
  // has no row for the series' unit or for its (type, unit) pair. Throws SQLite::Exception
  // "FOREIGN KEY constraint failed" when no Element row has that key.
  bool write(int64_t elementId, const Serie& serie, unsigned int windowId);

 private:
  // The SerieType row of serie, 0 when its unit or pair is missing; remembered per (name, unit).
  int64_t serieTypeRow(const Serie& serie);
  // "%Y-%m-%d" of a julian day, formatted once per day and kept while the writer lives, so that
  // the insert can bind it without a copy.
  const std::string& dateText(unsigned int julian);
  void requireElement(int64_t elementId);
  // The insert of rows values, prepared the first time a series needs a block of that size.
  SQLite::Statement& insertOf(std::size_t rows);

  SQLite::Database& storage;
  const std::string timeStamp;
  const std::string timeStampHash;
  const int64_t userId;
  SQLite::Statement findUnit;
  SQLite::Statement findType;
  SQLite::Statement findElement;
  SQLite::Statement retire;
  std::map<std::size_t, std::unique_ptr<SQLite::Statement>> inserts;
  std::map<std::pair<std::string, std::string>, int64_t> typeRows;
  std::unordered_map<unsigned int, std::string> dates;
  int64_t knownElement = 0;
};
