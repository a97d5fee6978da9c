#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Scenario;

// Where a command creates a project: a new name, never one whose file or database exists, so
// that no project is overwritten. A project is written under partial names in the target's
// folder (".<name>.partial" and its database) and renamed into place only when both files are
// complete, the database first: a save that fails, is cancelled or is killed leaves no file under
// the target's names, and what a killed one left under the partial names goes at the next try.
class NewProjectTarget {
 public:
  using Progress = std::function<bool(long, long)>;

  // Throws std::runtime_error naming the file that exists or the folder that is missing.
  static void require(const std::filesystem::path& path);
  // Saves scenarios as the only ones of a project at path (file and database), with nothing of
  // it left open after. False when progress cancelled; throws std::runtime_error naming path when
  // the files could not be written. Either way nothing is left at path.
  [[nodiscard]] static bool save(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                 const std::filesystem::path& path, const Progress& progress);
  // As save(), for the scenarios of the open project; its database is closed after.
  [[nodiscard]] static bool saveOpenProject(const std::filesystem::path& path,
                                            const Progress& progress);
  // The partial name under which the project at path is written.
  static std::filesystem::path partialPath(const std::filesystem::path& path);
  // Removes the project file and database at path, with the database's journals, as far as they
  // exist.
  static void discard(const std::filesystem::path& path);

 private:
  // Runs write on the partial path, checks what it wrote and renames it into place.
  static bool writeInPlace(const std::filesystem::path& path,
                           const std::function<bool(const std::string&)>& write);
  // Throws std::runtime_error unless the file at written holds a whole JSON text.
  static void requireComplete(const std::filesystem::path& written,
                              const std::filesystem::path& path);
};
