#pragma once

#include <string>

// A zip archive being written, over minizip: open, then for each entry open it, write files into
// it and close it, then close the archive. Every failure throws std::runtime_error
// "ZipArchive: <what> failed: <name>".
class ZipArchive {
 public:
  // Creates (mode 'w') or extends (mode 'a') the archive at path; entries are deflated at level
  // (0 to 9).
  ZipArchive(const std::string& path, int level, char mode);
  ~ZipArchive();
  ZipArchive(const ZipArchive&) = delete;
  ZipArchive& operator=(const ZipArchive&) = delete;

  // Starts the entry name.
  void zip_entry_open(const std::string& name);
  // Appends the bytes of the file at path to the open entry.
  void zip_entry_fwrite(const std::string& path);
  void zip_entry_close();
  // Writes the archive's directory and closes it; the archive is complete only after this.
  void zip_close();

 private:
  void* handle;
  int level;
  bool entryOpen = false;
};
