#include "reports/CSVWriteFile.h"

#include <stdexcept>
#include <system_error>

void CSVWriteFile::finish(std::ofstream& file, const std::filesystem::path& path,
                          const std::string& error) {
  file.close();
  if (file.fail()) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    throw std::runtime_error(error + ": " + path.string());
  }
}

void CSVWriteFile::requireWritableFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!error && !std::filesystem::is_directory(folder, error)) {
    error = std::make_error_code(std::errc::not_a_directory);
  }
  const std::filesystem::path probe = folder / ".kova-write-probe";
  if (!error) {
    std::ofstream file(probe);
    file << '\n';
    file.close();
    if (file.fail()) error = std::make_error_code(std::errc::permission_denied);
    std::error_code ignored;
    std::filesystem::remove(probe, ignored);
  }
  if (error) {
    throw std::runtime_error(folder.string() + ": CSV files cannot be written there (" +
                             error.message() + ")");
  }
}

void CSVWriteFile::removeAll(const std::vector<std::filesystem::path>& paths) {
  std::error_code ignored;
  for (const auto& path : paths) std::filesystem::remove(path, ignored);
}
