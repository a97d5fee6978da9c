#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/ConfigurationHeader.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "project/JsonLoadElement.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveElement.h"
#include "scenario/ScenarioManager.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace projectfile {

// The test's own temporary folder.
class TemporaryFolder : public ::TemporaryFolder {
 public:
  TemporaryFolder() : ::TemporaryFolder("kova_project_") {}
};

using ::readFile;
using ::writeFile;

// The text of the project file of scenarios, in their order, written to path.
inline std::string saved(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                         const std::string& path) {
  auto& manager = ScenarioManager::getInstance();
  manager.clear();
  for (unsigned int index = 0; index < scenarios.size(); ++index) {
    manager.addScenery(index, scenarios[index]);
  }
  EXPECT_TRUE(JsonSaveBuilder::save(path));
  manager.clear();
  return readFile(path);
}

// The hand-written project of tests/data/project.
inline std::string goldenPath() {
  return std::string(KOVA_EXAMPLES_DIR) + "/../tests/data/project/vale.sjson";
}

// The hand-written priority project of tests/data/project.
inline std::string priorityGoldenPath() {
  return std::string(KOVA_EXAMPLES_DIR) + "/../tests/data/project/prioridades.sjson";
}

// text with the first occurrence of from replaced; fails the test when from is absent.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const auto at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  if (at != std::string::npos) text.replace(at, from.size(), to);
  return text;
}

// The series and the level-area-volume tables are kept in the project's database, not in its
// file: the loaded scenario gets them as the database would give them.
inline void handOverSeries(const Scenario& from, const Scenario& to) {
  for (const auto& element : from.getElements()) {
    const auto& copy = to.getElement(element->getId());
    copy->getInputSeries()->copyFrom(element->getInputSeries());
    if (auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      std::static_pointer_cast<Reservoir>(copy)->getReservoirInfo().cav =
          reservoir->getReservoirInfo().cav;
    }
  }
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
