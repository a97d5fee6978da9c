#include "StoredRun.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <chrono>
#include <ctime>
#include <stdexcept>

#include "HostText.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/SQLStorage.h"

namespace {

// The file's last change in the form of the database's time stamps (local time, seconds), so that
// the two compare as texts.
std::string modifiedAt(const std::filesystem::path& file) {
  const auto written = std::filesystem::last_write_time(file);
  const auto system = std::chrono::time_point_cast<std::chrono::system_clock::duration>(
      written - std::filesystem::file_time_type::clock::now() + std::chrono::system_clock::now());
  const std::time_t seconds = std::chrono::system_clock::to_time_t(system);
  std::tm local{};
  localtime_r(&seconds, &local);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
  return text;
}

std::string runTimeStamp(SQLite::Database& storage, const std::string& hash) {
  SQLite::Statement query(storage,
                          "SELECT timeStamp FROM SerieOutput WHERE timeStampHash = ? ORDER BY id DESC LIMIT 1");
  query.bind(1, hash);
  return query.executeStep() ? query.getColumn(0).getString() : std::string();
}

// The latest time stamp of the scenario's enabled input series and curves.
std::string inputsTimeStamp(SQLite::Database& storage, int64_t scenarioId) {
  SQLite::Statement query(
      storage,
      "SELECT MAX(stamp) FROM (SELECT MAX(timeStamp) AS stamp FROM SerieInput WHERE enabled = 1 "
      "AND elementID IN (SELECT databaseId FROM Element WHERE scenId = ?1) UNION ALL SELECT "
      "MAX(timeStamp) FROM Cav WHERE enabled = 1 AND elementID IN (SELECT databaseId FROM "
      "Element WHERE scenId = ?1))");
  query.bind(1, scenarioId);
  return query.executeStep() && !query.getColumn(0).isNull() ? query.getColumn(0).getString()
                                                             : std::string();
}

}  // namespace

StoredRun StoredRun::latest(const std::shared_ptr<Scenario>& scenario,
                            const std::filesystem::path& projectFile) {
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto hashes =
      DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  if (hashes.empty()) {
    throw std::runtime_error(tr("scenario \"{1}\" has no stored results", {scenario->getName()}));
  }
  return DatabaseException::guard([&] {
    const std::string stamp = runTimeStamp(storage, hashes.back());
    const bool newer = modifiedAt(projectFile) > stamp ||
                       inputsTimeStamp(storage, scenario->getDatabaseId()) > stamp;
    return StoredRun(stamp, newer);
  });
}
