#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

class Scenario;

// Where a command creates a project: a new name, never one whose file or database exists, so
// that no project is overwritten.
class NewProjectTarget {
 public:
  using Progress = std::function<bool(long, long)>;

  // Throws std::runtime_error naming the file that exists or the folder that is missing.
  static void require(const std::filesystem::path& path);
  // Saves scenarios as the only ones of a project at path (file and database), with nothing of
  // it left open after. False when progress cancelled or the file could not be written; on that
  // and on any failure, what was begun at path is removed, since neither file existed before.
  [[nodiscard]] static bool save(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                 const std::filesystem::path& path, const Progress& progress);
  // Removes the project file and database at path, as far as they exist.
  static void discard(const std::filesystem::path& path);
};
