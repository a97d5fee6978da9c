#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

// A folder of its own under the system's temporary folder, named after the running test and
// removed with everything in it.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& prefix) {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    path = std::filesystem::temp_directory_path() /
           (prefix + std::string(test->test_suite_name()) + "_" + test->name());
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string file(const std::string& name) const { return (path / name).string(); }

 private:
  std::filesystem::path path;
};
