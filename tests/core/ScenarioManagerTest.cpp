#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

class ScenarioManagerTest : public ::testing::Test {
 protected:
  void SetUp() override { manager.clear(); }
  void TearDown() override { manager.clear(); }

  // A scenario of one drain under index: the smallest network that runs.
  std::shared_ptr<Scenario> add(unsigned int index, unsigned int id) {
    auto scenario = std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), id,
                                                   NetworkBuilder::monthly(2000, 2000),
                                                   "S" + std::to_string(id));
    NetworkBuilder(scenario).node(ElementType::drain);
    manager.addScenery(index, scenario);
    return scenario;
  }

  ScenarioManager& manager = ScenarioManager::getInstance();
};

}  // namespace

TEST_F(ScenarioManagerTest, OnlyTheFirstScenarioAddedBecomesCurrent) {
  auto first = add(0, 10);
  EXPECT_EQ(manager.getCurrentScenario(), first);
  add(1, 20);
  EXPECT_EQ(manager.getCurrentScenario(), first);
  EXPECT_EQ(manager.getNumberOfSceneries(), 2u);
  EXPECT_EQ(manager.getIndexOfCurrentScen(), 0u);
}

TEST_F(ScenarioManagerTest, DeletingTheCurrentScenarioRenumbersTheOthers) {
  manager.deleteCurrentScenery(false);
  EXPECT_EQ(manager.getNumberOfSceneries(), 0u);

  auto first = add(0, 10);
  add(1, 20);
  auto third = add(2, 30);
  manager.setCurrentScenario(1);
  EXPECT_THROW_TEXT(manager.deleteCurrentScenery(true), std::logic_error,
                    "ScenarioManager::deleteCurrentScenery(): the project database is not open");
  EXPECT_EQ(manager.getNumberOfSceneries(), 3u);

  manager.deleteCurrentScenery(false);
  EXPECT_EQ(manager.getNumberOfSceneries(), 2u);
  EXPECT_EQ(manager.mappingScenery(0), first);
  EXPECT_EQ(manager.mappingScenery(1), third);
  EXPECT_EQ(manager.getCurrentScenario(), third);
  EXPECT_EQ(manager.getIndexByScenId(30), 1u);
  EXPECT_THROW_TEXT(manager.getIndexByScenId(20), std::invalid_argument,
                    "ScenarioManager::getIndexByScenId: invalid operation");
  EXPECT_THROW(manager.mappingScenery(5), std::out_of_range);

  manager.deleteCurrentScenery(false);
  EXPECT_EQ(manager.getCurrentScenario(), first);
  manager.deleteCurrentScenery(false);
  EXPECT_EQ(manager.getCurrentScenario(), nullptr);
  EXPECT_THROW_TEXT(manager.getIndexOfCurrentScen(), std::invalid_argument,
                    "ScenarioManager::getIndexOfCurrentScen: invalid operation");
}

TEST_F(ScenarioManagerTest, ScenariosAreRunByTheirIndexNotTheirPosition) {
  add(0, 10);
  auto later = add(5, 50);
  EXPECT_TRUE(manager.executeScenery(5, nullptr, nullptr));
  EXPECT_EQ(later->getSceneryStatus().getType(), SceneryStatus::success);
  EXPECT_THROW_TEXT(manager.executeScenery(1, nullptr, nullptr), std::invalid_argument,
                    "ScenarioManager::executeScenery: scenery's index is invalid");
  EXPECT_EQ(manager.getIntervals().count(5), 1u);
}

TEST(ScenarioManagerProgress, OneStepPerResultSeriesOfEachEnabledElement) {
  NetworkBuilder net(NetworkBuilder::monthly(2000, 2000));
  auto junction = net.node(ElementType::junction);
  auto drain = net.node(ElementType::drain);
  net.link(junction, drain);
  const auto& elements = net.scenario->getElements();
  EXPECT_EQ(ScenarioManager::getTotalOfResultsInDatabaseProgressBar(1, elements), 0);
  net.scenario->createResults();
  // Junction: outflow, inflow (2). Drain: the 15 demand results. Link without add-on and not
  // bidirectional: inflow, transit loss, outflow (3).
  EXPECT_EQ(ScenarioManager::getTotalOfResultsInDatabaseProgressBar(1, elements), 20);
  EXPECT_EQ(ScenarioManager::getTotalOfResultsInDatabaseProgressBar(3, elements), 20);
  EXPECT_EQ(ScenarioManager::getTotalOfResultsInDatabaseProgressBar(0, elements), 0);
  junction->setEnabled(false);
  EXPECT_EQ(ScenarioManager::getTotalOfResultsInDatabaseProgressBar(1, elements), 18);
}
