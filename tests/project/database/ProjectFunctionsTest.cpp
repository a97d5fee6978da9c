#include <gtest/gtest.h>

#include <filesystem>

#include "common/Calendar.h"
#include "managers/ProjectFunctions.h"
#include "operation/ExecutionContinuous.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/LoadProject.h"
#include "project/database/ProjectResumate.h"
#include "project/database/SaveProject.h"
#include "project/database/UserLiteSaver.h"
#include "scenario/PriorityScenario.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using ProjectFunctionsTest = DatabaseTest;

namespace {

// A saved rule project with history in its database: two stored runs and a replaced curve.
std::unique_ptr<RealisticNetwork> savedWithHistory(const std::string& path) {
  ConfigurationHeader::setSaveOnlyOneResults(false);
  auto network = installRealisticProject(1931);
  EXPECT_TRUE(SaveProject::saveAs(path, nullptr));
  for (int run = 0; run < 2; ++run) {
    EXPECT_TRUE(
        ScenarioManager::getInstance().executeScenery(0, nullptr, [](long, long) { return true; }));
  }
  network->reservoirs.front()->getReservoirInfo().cav.back()[0] += 1.0;
  DatabaseUpdate::updateCAV(SQLStorage::getInstance().getStorageRef(),
                            *network->reservoirs.front());
  EXPECT_TRUE(SaveProject::save(path, nullptr));
  return network;
}

}  // namespace

TEST_F(ProjectFunctionsTest, ABlankPriorityScenarioCoversTheCurrentYearUnderTheNextId) {
  ScenarioManager::getInstance().setNextScenarioId(4);
  const auto scenario = ProjectFunctions::createBlankPriorityScenery();
  const unsigned int year = Calendar::getCurrentDate().getYear();
  EXPECT_EQ(scenario->getId(), 4u);
  EXPECT_EQ(scenario->getName(), "Cenário 4");
  EXPECT_EQ(scenario->getScenarioType(), Vocabulary::of(ScenarioType::priorityOptimizer));
  EXPECT_EQ(scenario->getExecutionMethod()->getExecutionType(),
            Vocabulary::of(ExecutionType::continuous));
  EXPECT_EQ(scenario->getInterval(),
            Interval(Date(year, 1, 1), Date(year, 12, 1), Vocabulary::of(Periodicity::monthly)));
  EXPECT_TRUE(scenario->getElements().empty());
  EXPECT_EQ(ScenarioManager::getInstance().getNextScenarioId(), 5u);
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
}

TEST_F(ProjectFunctionsTest, ABlankPriorityProjectReopensAsItWasMade) {
  const std::string path = folder.file("novo.sjson");
  installRealisticProject(1931);
  ConfigurationHeader::setPrecision(2);
  ASSERT_TRUE(ProjectFunctions::createBlankPriorityProject(path));
  EXPECT_EQ(ConfigurationHeader::getPrecision(), 5u);
  ASSERT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 1u);
  const auto made = ScenarioManager::getInstance().getCurrentScenario();
  EXPECT_EQ(made->getName(), "Cenário 1");
  EXPECT_EQ(countRows(path + ".sqlite", "Scenario"), 1);
  EXPECT_EQ(ProjectResumate::toText(ProjectResumate::getResumate(path)),
            "Cenário 1: Cenário 1\n  Tipo: Otimizador por prioridades\n"
            "  Método de execução: Contínuo\n  Período: 01/" +
                std::to_string(made->getInterval().getBegin().getYear()) + " a 12/" +
                std::to_string(made->getInterval().getEnd().getYear()) + " (Mensal)\n");

  ProjectFunctions::closeProject();
  EXPECT_FALSE(SQLStorage::hasInstance());
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
  const auto reopened = LoadProject::load(path, nullptr);
  ASSERT_EQ(reopened.size(), 1u);
  EXPECT_EQ(reopened[0]->getScenarioType(), made->getScenarioType());
  EXPECT_EQ(reopened[0]->getName(), made->getName());
  EXPECT_EQ(reopened[0]->getInterval(), made->getInterval());
  EXPECT_EQ(reopened[0]->getDatabaseId(), made->getDatabaseId());
  EXPECT_TRUE(reopened[0]->getElements().empty());
}

TEST_F(ProjectFunctionsTest, SaveAsWithTheOlderDatabaseTakesItsHistoryAlong) {
  const std::string path = folder.file("velho.sjson");
  const std::string copy = folder.file("copia.sjson");
  const auto network = savedWithHistory(path);
  const auto curveRows = network->reservoirs.front()->getReservoirInfo().cav.size();
  // The copy must open as the original opens.
  ProjectFunctions::closeProject();
  install(LoadProject::load(path, nullptr));
  const auto& original = *ScenarioManager::getInstance().mappingScenery(0);
  const auto inputs = inputsOf(original), results = resultsOf(original);
  const int64_t user = UserLiteSaver::defaultUserId(SQLStorage::getInstance().getStorageRef());

  ASSERT_TRUE(ProjectFunctions::saveJsonProjectAsWithOlderDatabase(copy, user, nullptr));
  EXPECT_EQ(SQLStorage::getInstance().getPath(), copy + ".sqlite");
  EXPECT_EQ(contentOf(copy + ".sqlite"), contentOf(path + ".sqlite"));
  EXPECT_EQ(countRows(copy + ".sqlite", "Cav WHERE enabled = 0"),
            static_cast<long long>(curveRows));

  ProjectFunctions::closeProject();
  install(LoadProject::load(copy, nullptr));
  const auto& reopened = *ScenarioManager::getInstance().mappingScenery(0);
  EXPECT_EQ(firstDifference(inputsOf(reopened), inputs), "");
  EXPECT_EQ(firstDifference(resultsOf(reopened), results), "");
  EXPECT_EQ(DatabaseSearch::getHashesOfResultsByScenID(SQLStorage::getInstance().getStorageRef(),
                                                       reopened.getDatabaseId())
                .size(),
            2u);
}

TEST_F(ProjectFunctionsTest, SaveAsWithoutTheOlderDatabaseLeavesTheHistoryBehind) {
  const std::string path = folder.file("velho.sjson");
  const std::string copy = folder.file("limpo.sjson");
  const auto network = savedWithHistory(path);
  const auto inputs = inputsOf(*network->net.scenario);
  const auto results = resultsOf(*network->net.scenario);

  ASSERT_TRUE(ProjectFunctions::saveJsonProjectAsWithoutOlderDatabase(copy, nullptr));
  EXPECT_EQ(SQLStorage::getInstance().getPath(), copy + ".sqlite");
  for (const char* table : {"SerieInput", "SerieOutput", "Cav"}) {
    EXPECT_EQ(countRows(copy + ".sqlite", std::string(table) + " WHERE enabled = 0"), 0) << table;
  }
  ProjectFunctions::closeProject();
  install(LoadProject::load(copy, nullptr));
  const auto& reopened = *ScenarioManager::getInstance().mappingScenery(0);
  EXPECT_EQ(firstDifference(inputsOf(reopened), inputs), "");
  EXPECT_EQ(firstDifference(resultsOf(reopened), results), "");
}

TEST_F(ProjectFunctionsTest, ACancelledOrRefusedSaveAsKeepsTheOpenProject) {
  const std::string path = folder.file("velho.sjson");
  const std::string copy = folder.file("copia.sjson");
  savedWithHistory(path);
  const auto before = contentOf(path + ".sqlite");
  const int64_t user = UserLiteSaver::defaultUserId(SQLStorage::getInstance().getStorageRef());

  EXPECT_FALSE(ProjectFunctions::saveJsonProjectAsWithOlderDatabase(
      copy, user, [](long done, long) { return done < 5; }));
  EXPECT_THROW_TEXT(
      static_cast<void>(ProjectFunctions::saveJsonProjectAsWithOlderDatabase(copy, 99, nullptr)),
      std::invalid_argument, "UsersCopy::copyUsers(): unknown userId");
  EXPECT_EQ(SQLStorage::getInstance().getPath(), path + ".sqlite");
  EXPECT_THROW(SQLStorage::getInstance().getTemporaryStorageRef(), std::runtime_error);
  EXPECT_FALSE(std::filesystem::exists(copy));
  EXPECT_EQ(countRows(copy + ".sqlite", "Scenario"), 0);

  // Onto its own path the project file alone is written.
  ASSERT_TRUE(ProjectFunctions::saveJsonProjectAsWithOlderDatabase(path, user, nullptr));
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
}
