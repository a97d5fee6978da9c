#include <gtest/gtest.h>

#include "optimization/OptimisableRules.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/JsonSaveBuilder.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"

using namespace databasetest;
using OptimizationDatabaseTest = DatabaseTest;

namespace {

std::shared_ptr<RuleOptimizationScenario> twoReservoirs() {
  auto scenario = optimisationtest::optimisation(OptimizationAlgorithmType::smpso, 4, 3, 2);
  scenario->getExecutionOptimization().setThreads(1);
  return scenario;
}

}  // namespace

// The project file holds the rules and the front; the database the series that the rules and the
// network read. Both together give back the scenario as it was.
TEST_F(OptimizationDatabaseTest, EveryOptimisableRuleAndTheFrontComeBackThroughTheDatabase) {
  auto scenario = twoReservoirs();
  optimisationtest::addEveryOptimisableRule(*scenario);
  scenario->setOptimizationResults({{1e-9, 0.75}}, {{12.5, 1.0 / 3.0}});
  install({scenario});
  const std::string path = folder.file("otimizacao.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  const std::string text = JsonSaveBuilder::toJson({scenario});
  const auto inputs = inputsOf(*scenario);
  SQLStorage::deleteInstance();

  const auto loaded = LoadProject::load(path, nullptr);
  ASSERT_EQ(loaded.size(), 1u);
  EXPECT_EQ(JsonSaveBuilder::toJson(loaded), text);
  EXPECT_EQ(firstDifference(inputsOf(*loaded[0]), inputs), "");
  EXPECT_EQ(std::static_pointer_cast<RuleOptimizationScenario>(loaded[0])->getMatrixOfSolutions(),
            scenario->getMatrixOfSolutions());
}

TEST_F(OptimizationDatabaseTest, AnOptimisationOpenedFromItsProjectFindsTheSameFront) {
  auto original = twoReservoirs();
  install({original});
  const std::string path = folder.file("otimizacao.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  SQLStorage::deleteInstance();
  ScenarioManager::getInstance().clear();

  const auto loaded =
      std::static_pointer_cast<RuleOptimizationScenario>(LoadProject::load(path, nullptr).at(0));
  loaded->getExecutionOptimization().setThreads(1);
  PseudoRandom::setSeed(9);
  ASSERT_TRUE(original->run(nullptr));
  PseudoRandom::setSeed(9);
  ASSERT_TRUE(loaded->run(nullptr));
  ASSERT_FALSE(original->getMatrixOfSolutions().empty());
  EXPECT_EQ(loaded->getMatrixOfSolutions(), original->getMatrixOfSolutions());
  EXPECT_EQ(loaded->getMatrixOfObjectiveFunctionsValues(),
            original->getMatrixOfObjectiveFunctionsValues());
}
