#include <gtest/gtest.h>

#include "core/ElementsFilter.h"
#include "managers/CoreServiceManager.h"
#include "project/database/DatabaseHistoricalManager.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseSceneryCopy.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"

using namespace databasetest;

namespace {

// A saved project whose database holds every kind of leftover: two runs, an input and a curve
// replaced with history kept, an element deleted in memory only, and a second scenario that the
// project no longer has.
class DatabaseHistoricalManagerTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    ConfigurationHeader::setSaveOnlyOneResults(false);
    ConfigurationHeader::setKeepInputSerieHistorical(true);
    network = installRealisticProject(1931);
    ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
    dropped = network->net.scenario->copy();
    DatabaseInsert::insertSceneryEntryInDatabase(*dropped);
    ASSERT_TRUE(DatabaseSceneryCopy::sceneryCopy(dropped, nullptr));
    const auto stored = [](long, long) { return true; };
    for (int run = 0; run < 2; ++run) {
      ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, stored));
    }
    auto& storage = SQLStorage::getInstance().getStorageRef();
    const auto& reservoir = network->reservoirs.front();
    ASSERT_TRUE(DatabaseUpdate::updateInputSerie(storage, reservoir->getDatabaseId(),
                                                 *reservoir->getVectorOfInputSeries().front()));
    DatabaseUpdate::updateCAV(storage, *reservoir);
    deleted = ElementsFilter::filterByLinks(network->net.scenario->getElements()).back();
    CoreServiceManager::deleteElementNoDatabase(network->net.scenario, deleted);
    ASSERT_TRUE(SaveProject::save(path, nullptr));
  }

  std::vector<std::shared_ptr<Scenario>> project() const { return {network->net.scenario}; }

  const std::string path = folder.file("history.sjson");
  std::unique_ptr<RealisticNetwork> network;
  std::shared_ptr<Scenario> dropped;
  std::shared_ptr<Element> deleted;
};

}  // namespace

TEST_F(DatabaseHistoricalManagerTest, OutdatedElementsAreThoseNoScenarioOfTheProjectHolds) {
  std::vector<int64_t> expected;
  for (const auto& element : dropped->getElements()) expected.push_back(element->getDatabaseId());
  expected.insert(expected.begin(), deleted->getDatabaseId());
  EXPECT_EQ(DatabaseHistoricalManager::getElementsWithOutDatedSceneries(
                SQLStorage::getInstance().getStorageRef(), project()),
            expected);
}

TEST_F(DatabaseHistoricalManagerTest, ErasingTheHistoryLeavesTheProjectAsItLoads) {
  SQLStorage::deleteInstance();
  install(LoadProject::load(path, nullptr));
  const auto scenario = ScenarioManager::getInstance().mappingScenery(0);
  const auto inputs = inputsOf(*scenario), results = resultsOf(*scenario);
  const std::string database = path + ".sqlite";
  ASSERT_GT(countRows(database, "SerieOutput WHERE enabled = 0"), 0);

  std::vector<long> steps;
  ASSERT_TRUE(DatabaseHistoricalManager::eraseAllHistorical(
      SQLStorage::getInstance().getStorageRef(), {scenario}, [&](long done, long total) {
        EXPECT_EQ(total, DatabaseHistoricalManager::totalProgressEraseAllHistorical());
        steps.push_back(done);
        return true;
      }));
  EXPECT_EQ(steps, (std::vector<long>{1, 2, 3, 4, 5, 6, 7, 8}));
  for (const char* table : {"SerieInput", "SerieOutput", "Cav"}) {
    EXPECT_EQ(countRows(database, std::string(table) + " WHERE enabled = 0"), 0) << table;
  }
  EXPECT_EQ(countRows(database, "Scenario"), 1);
  EXPECT_EQ(countRows(database, "Element"), static_cast<long long>(scenario->getElements().size()));
  EXPECT_EQ(
      countRows(database, "SerieInput WHERE elementID NOT IN (SELECT databaseId FROM Element)"), 0);

  SQLStorage::deleteInstance();
  install(LoadProject::load(path, nullptr));
  const auto& reloaded = *ScenarioManager::getInstance().mappingScenery(0);
  EXPECT_EQ(firstDifference(inputsOf(reloaded), inputs), "");
  EXPECT_EQ(firstDifference(resultsOf(reloaded), results), "");
}

TEST_F(DatabaseHistoricalManagerTest, ACancelledEraseLeavesEveryRow) {
  const auto before = contentOf(path + ".sqlite");
  EXPECT_FALSE(DatabaseHistoricalManager::eraseAllHistorical(
      SQLStorage::getInstance().getStorageRef(), project(),
      [](long done, long) { return done < 7; }));
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
}
