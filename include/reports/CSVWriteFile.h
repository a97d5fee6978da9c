#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// The end of every CSV export: a file is complete only once it is closed without a failed write,
// and an export that fails takes back the files it wrote, so that no half export is left.
class CSVWriteFile {
 public:
  // Closes file. Throws std::runtime_error "<error>: <path>" when a write to it or its closing
  // failed (a full disk, for one), after removing it.
  static void finish(std::ofstream& file, const std::filesystem::path& path,
                     const std::string& error);
  // Makes folder when missing and throws std::runtime_error "<folder>: CSV files cannot be
  // written there (<reason>)" unless a file can be made in it, so that a long run learns it
  // before it computes.
  static void requireWritableFolder(const std::filesystem::path& folder);
  // Removes the files, and the folders once empty, at paths, as far as they exist.
  static void removeAll(const std::vector<std::filesystem::path>& paths);
};
