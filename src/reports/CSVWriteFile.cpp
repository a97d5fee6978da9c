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

void CSVWriteFile::removeAll(const std::vector<std::filesystem::path>& paths) {
  std::error_code ignored;
  for (const auto& path : paths) std::filesystem::remove(path, ignored);
}
