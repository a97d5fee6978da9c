#pragma once

#include <filesystem>
#include <string>
#include <vector>

// A comma-separated data file with a header line, read whole. Failures are std::runtime_error
// texts that name the file (and the line or column).
class CsvTable {
 public:
  explicit CsvTable(const std::filesystem::path& path);

  std::size_t rows() const { return cells.size(); }
  // The position of the column with that heading.
  std::size_t column(const std::string& heading) const;
  const std::string& text(std::size_t row, std::size_t column) const;
  double number(std::size_t row, std::size_t column) const;
  // The row whose first field is key.
  std::size_t rowOf(const std::string& key) const;

 private:
  std::filesystem::path path;
  std::vector<std::string> headings;
  std::vector<std::vector<std::string>> cells;
};
