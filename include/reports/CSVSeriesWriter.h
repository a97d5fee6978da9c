#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "common/Serie.h"

// The table part of the CSV exports: series side by side, ";" between fields.
class CSVSeriesWriter {
 public:
  // The heading of a series: its name and its unit in parentheses ("Volume final (hm³)").
  static std::string heading(const Serie& serie);
  // Writes "Date;" and the headings joined by ";", then a line per date of the first series'
  // interval: the date in dateFormat ("%Y%m%d") and each series' value there behind ";", -999
  // where it has none. Without series only the heading line is written.
  static void write(std::ostream& out, const std::vector<std::shared_ptr<Serie>>& series,
                    const std::string& dateFormat);
  // A new file at path, its folders created. Throws std::runtime_error with error when the
  // folders or the file cannot be made.
  static std::ofstream create(const std::filesystem::path& path, const std::string& error);
};
