#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <unistd.h>

// A folder of its own under the system's temporary folder, named after the running test and
// removed with everything in it.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(const std::string& prefix) {
    // Named after the test, or after the suite when a suite's set-up makes it, and after the
    // process: CTest runs each test in a process of its own, and several builds may run the same
    // test side by side.
    const auto* unit = ::testing::UnitTest::GetInstance();
    const auto* test = unit->current_test_info();
    const std::string name = (test ? std::string(test->test_suite_name()) + "_" + test->name()
                                   : std::string(unit->current_test_suite()->name())) +
                             "_" + std::to_string(getpid());
    path = std::filesystem::temp_directory_path() / (prefix + name);
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string file(const std::string& name) const { return (path / name).string(); }
  const std::filesystem::path& root() const { return path; }

 private:
  std::filesystem::path path;
};
