#include <gtest/gtest.h>

#include "core/ElementsFilter.h"
#include "operation/PriorityNetworkBuilder.h"
#include "project/database/DatabaseHydrologicalSerieManager.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseSerieUpdater.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/ProjectSaver.h"
#include "project/database/SaveProject.h"
#include "project/database/StorageManager.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseSerieUpdaterTest = DatabaseTest;

TEST_F(DatabaseSerieUpdaterTest,
       AnEditedInputReplacesTheRowsOfItsSeriesAndKeepsThemAsHistoryOnAsk) {
  const auto network = installRealisticProject(1931);
  const auto& scenario = *network->net.scenario;
  const std::string path = folder.file("input.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  const auto demand =
      ElementsFilter::filterByType(scenario.getElements(), {ElementType::humanDemand}).front();
  const auto serie = demand->getInputSerie(SerieType::demand);
  const std::string rows =
      "SerieInput WHERE elementID = " + std::to_string(demand->getDatabaseId()) +
      " AND type = (SELECT " +
      "SerieType.id FROM SerieType JOIN Unit ON Unit.id = SerieType.unit " +
      "WHERE SerieType.type = '" + serie->getName() + "' AND Unit.name = '" +
      serie->getUnit().getName() + "')";
  const long long stored = countRows(path + ".sqlite", rows);
  ASSERT_EQ(stored, static_cast<long long>(serie->size()));

  serie->setValue(Date(1931, 6, 1), 123.25);
  ASSERT_TRUE(DatabaseSerieUpdater::updateDatabase(scenario, *demand, *serie));
  EXPECT_EQ(countRows(path + ".sqlite", rows), stored);
  EXPECT_EQ(countRows(path + ".sqlite", rows + " AND enabled = 1 AND value = 123.25"), 1);

  ConfigurationHeader::setKeepInputSerieHistorical(true);
  serie->setValue(Date(1931, 6, 1), 7.5);
  ASSERT_TRUE(DatabaseSerieUpdater::updateDatabase(scenario, *demand, *serie));
  EXPECT_EQ(countRows(path + ".sqlite", rows), 2 * stored);
  EXPECT_EQ(countRows(path + ".sqlite", rows + " AND enabled = 0 AND value = 123.25"), 1);
  EXPECT_EQ(countRows(path + ".sqlite", rows + " AND enabled = 1 AND value = 7.5"), 1);

  const Serie stranger(scenario.getInterval(), serie->getEnumType(), serie->getUnit());
  EXPECT_THROW_TEXT(
      static_cast<void>(DatabaseSerieUpdater::updateDatabase(scenario, *demand, stranger)),
      std::invalid_argument,
      "DatabaseSerieUpdater::updateDatabase(): the serie is not one of the element's");
}

TEST_F(DatabaseSerieUpdaterTest, AnEditedResultReplacesItsWindowWithinTheStoredRun) {
  const auto network = installRealisticProject(1931);
  const auto& scenario = network->net.scenario;
  const std::string path = folder.file("result.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  ASSERT_TRUE(
      ScenarioManager::getInstance().executeScenery(0, nullptr, [](long, long) { return true; }));
  const auto& reservoir = network->reservoirs.front();
  const auto volume = reservoir->getOutputSerie(SerieType::finalVolume, 0);
  const std::string rows =
      "SerieOutput WHERE elementID = " + std::to_string(reservoir->getDatabaseId()) +
      " AND windowid = 0";
  const long long stored = countRows(path + ".sqlite", rows);

  volume->setValue(Date(1931, 3, 1), 1234.5);
  ASSERT_TRUE(DatabaseSerieUpdater::updateDatabase(*scenario, *reservoir, *volume));
  EXPECT_EQ(countRows(path + ".sqlite", rows), stored);
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto runs = DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  ASSERT_EQ(runs.size(), 1u);
  const auto results = resultsOf(*scenario);
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, runs.front());
  EXPECT_EQ(firstDifference(resultsOf(*scenario), results), "");
  EXPECT_EQ(reservoir->getOutputSerie(SerieType::finalVolume, 0)->getValue(Date(1931, 3, 1)),
            1234.5);
}

TEST_F(DatabaseSerieUpdaterTest, AnEditedGoalOfAStateReplacesOnlyThatState) {
  PriorityNetworkBuilder net(3);
  auto reservoir = net.reservoir(10, 100, 50, 1, 0.5);
  auto demand = net.demand(5.0, 2);
  net.link(reservoir, demand);
  net.scenario->getHydrologicalStateConfiguration()->setNumOfStates(3, net.scenario);
  auto storage = StorageManager::createStorage(folder.file("goals.sqlite"));
  ASSERT_TRUE(ProjectSaver::saveAsTransaction(*storage, {net.scenario}, nullptr));

  const auto& pairs = net.settings(demand)->getPrioritySeries();
  ASSERT_EQ(pairs.size(), 3u);
  pairs[1].second->setValue(Date(2001, 2, 1), 4.25);
  ASSERT_TRUE(
      DatabaseSerieUpdater::updateDatabase(*storage, *net.scenario, *demand, *pairs[1].second));
  for (unsigned int state = 0; state < 3; ++state) {
    SCOPED_TRACE(state);
    Serie stored(net.interval(), pairs[state].second->getEnumType(),
                 pairs[state].second->getUnit());
    ASSERT_TRUE(DatabaseHydrologicalSerieManager::loadHydrologicalSeriesFromDatabase(
        *storage, demand->getDatabaseId(), state, stored));
    EXPECT_EQ(stored.getMapOfJulianToValues(), pairs[state].second->getMapOfJulianToValues());
  }
}
