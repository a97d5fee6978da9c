#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/ConfigurationHeader.h"
#include "core/ScenarioManager.h"
#include "project/JsonLoadElement.h"
#include "project/JsonSaveElement.h"

namespace projectfile {

// A folder of its own under the system's temporary folder, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    path = std::filesystem::temp_directory_path() /
           ("kova_project_" + std::string(test->test_suite_name()) + "_" + test->name());
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

inline std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

inline void writeFile(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

// The hand-written project of tests/data/project.
inline std::string goldenPath() {
  return std::string(KOVA_EXAMPLES_DIR) + "/../tests/data/project/vale.sjson";
}

// text with the first occurrence of from replaced; fails the test when from is absent.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const auto at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  if (at != std::string::npos) text.replace(at, from.size(), to);
  return text;
}

// The process-wide state that saving and loading use, back to its defaults around each test.
class ProjectFileTest : public ::testing::Test {
 protected:
  void SetUp() override { resetProcessState(); }
  void TearDown() override { resetProcessState(); }

 private:
  static void resetProcessState() {
    ConfigurationHeader::reset();
    ScenarioManager::getInstance().clear();
    JsonSaveElement::setLambdaExtraInfoElement(nullptr);
    JsonLoadElement::setLambdaExtraInfoElement(nullptr);
  }
};

}  // namespace projectfile
