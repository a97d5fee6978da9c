#include "NewProjectTarget.h"

#include <stdexcept>
#include <vector>

#include "project/database/LoadProject.h"

void NewProjectTarget::require(const std::filesystem::path& path) {
  std::error_code error;
  for (const auto& file :
       std::vector<std::filesystem::path>{path, LoadProject::databasePath(path.string())}) {
    if (std::filesystem::exists(file, error)) {
      throw std::runtime_error(file.string() + ": already exists (choose another name)");
    }
  }
  const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  if (!std::filesystem::is_directory(folder, error)) {
    throw std::runtime_error(folder.string() + ": no such folder");
  }
}
