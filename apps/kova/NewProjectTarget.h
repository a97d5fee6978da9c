#pragma once

#include <filesystem>

// Where a command creates a project: a new name, never one whose file or database exists, so
// that no project is overwritten.
class NewProjectTarget {
 public:
  // Throws std::runtime_error naming the file that exists or the folder that is missing.
  static void require(const std::filesystem::path& path);
};
