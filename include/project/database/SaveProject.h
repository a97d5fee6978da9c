#pragma once

#include <functional>
#include <string>

// Saves the open project (the scenarios of the ScenarioManager).
class SaveProject {
 public:
  using Progress = std::function<bool(long, long)>;

  // Writes the project file only: every edit already keeps the database in step. False when the
  // file could not be written.
  [[nodiscard]] static bool save(const std::string& path, const Progress& progress);
  // Writes everything to "<path>.sqlite" (which becomes the open database) in one transaction,
  // then the project file; false when progress cancelled (nothing written) or the file could not
  // be written. Throws DatabaseException as SQLiteOrmSaver::save.
  [[nodiscard]] static bool saveAs(const std::string& path, const Progress& progress);
  // Writes everything into the open database in one transaction, then the project file at path;
  // false as saveAs. Throws std::logic_error without an open database, DatabaseException.
  [[nodiscard]] static bool saveAfterCommitData(const std::string& path, const Progress& progress);
};
