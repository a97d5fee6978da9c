#pragma once

#include <filesystem>

// A private folder (mode 0700) for the files one request makes, removed with everything in it
// when the object goes: concurrent requests never share a file.
class TemporaryWorkspace {
 public:
  // Throws std::runtime_error "TemporaryWorkspace: cannot create a folder in <temp>".
  TemporaryWorkspace();
  ~TemporaryWorkspace();
  TemporaryWorkspace(const TemporaryWorkspace&) = delete;
  TemporaryWorkspace& operator=(const TemporaryWorkspace&) = delete;

  const std::filesystem::path& path() const { return folder; }

 private:
  std::filesystem::path folder;
};
