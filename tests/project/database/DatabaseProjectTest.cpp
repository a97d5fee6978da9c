#include <gtest/gtest.h>

#include "core/PriorityReservoirSettings.h"
#include "managers/ProjectFunctions.h"
#include "operation/PriorityNetworkBuilder.h"
#include "project/JsonProjectLoader.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"
#include "project/database/SerieSaver.h"
#include "project/database/StorageManager.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseProjectTest = DatabaseTest;

namespace {

std::vector<std::string> rowsOf(SQLite::Database& database, const std::string& sql) {
  std::vector<std::string> rows;
  SQLite::Statement query(database, sql);
  while (query.executeStep()) rows.push_back(query.getColumn(0).getString());
  return rows;
}

// A priority project with every element kind, three hydrological states of the system whose
// goals differ by element and state, and zones of both kinds on the first reservoir.
std::shared_ptr<PriorityScenario> everyKindPriorityProject() {
  using E = ElementType;
  PriorityNetworkBuilder net(12);
  auto upper = net.reservoir(10, 100, 60, 1, 0.5);
  auto lower = net.reservoir(20, 300, 200, 3, 0.4);
  upper->getInputSerie(SerieType::naturalIncrementalFlow)->fill(12.0);
  auto basin = net.node(E::basin);
  auto junction = net.node(E::junction);
  for (const auto& node : {basin, junction}) {
    for (const auto& serie : node->getVectorOfInputSeries()) serie->fill(2.5);
  }
  auto drain = net.node(E::drain);
  net.link(upper, lower, 1.0);
  net.link(basin, junction, 0.0, 50.0, E::artificialLink);
  net.link(lower, junction, 2.0);
  unsigned int priority = 2;
  for (E type : {E::humanDemand, E::animalDemand, E::industrialDemand, E::irrigationDemand}) {
    auto demand = net.demand(4.0 + priority, priority, type);
    net.link(junction, demand, 0.5, 80.0, E::artificialLink);
    net.link(demand, drain);
    ++priority;
  }
  net.link(junction, drain);

  auto& states = *net.scenario->getHydrologicalStateConfiguration();
  states.setCurrentHydrologicalStateType(Vocabulary::of(HydrologicalStateType::standard));
  states.setNumOfStates(3, net.scenario);
  states.setXValues({0.3, 0.4});
  for (const auto& element : net.scenario->getElements()) {
    const auto settings = std::dynamic_pointer_cast<PrioritySettings>(
        net.scenario->getSettingsManager().getSettings(element->getId()));
    if (!settings) continue;
    const auto& pairs = settings->getPrioritySeries();
    for (unsigned int state = 0; state < pairs.size(); ++state) {
      settings->setPriorityOfPairPrioritySerie(1 + state + element->getId(), state);
      if (element->getType() == E::reservoir) {
        pairs[state].second->fill(0.2 + 0.1 * state + 0.01 * element->getId());
      } else if (element->getType() != E::drain) {
        pairs[state].second->fill(1.0 + state + element->getId());
      }
    }
  }
  const auto zones = net.settings<PriorityReservoirSettings>(upper);
  zones->setIsHydrologicalStateSystem(true);
  net.settings<PriorityReservoirSettings>(lower)->setIsHydrologicalStateSystem(true);
  for (unsigned int index = 0; index < 2; ++index) {
    zones->addDefaultHydrologicalZone(net.interval());
    zones->setValueOfHydrologicalZone(0.25 * (index + 1), index);
    zones->getVectorOfHydrologicalZones()[index].serie->fill(0.3 + 0.2 * index);
  }
  zones->initHydrologicalZoneMonthly(2, net.interval());
  for (unsigned int month = 0; month < 12; ++month) {
    zones->getVectorOfHydrologicalZonesMonthly(month)[1].serie->fill(0.05 * month);
  }
  return net.scenario;
}

// Every goal series of the states and zones, by element name.
Snapshot goalsOf(const Scenario& scenario) {
  Snapshot snapshot;
  for (const auto& element : scenario.getElements()) {
    const auto settings = std::dynamic_pointer_cast<PrioritySettings>(
        scenario.getSettingsManager().getSettings(element->getId()));
    if (!settings) continue;
    const std::string name = element->getName();
    for (std::size_t state = 0; state < settings->getPrioritySeries().size(); ++state) {
      addSerie(snapshot, name + "|state" + std::to_string(state),
               *settings->getPrioritySeries()[state].second);
    }
    const auto zones = std::dynamic_pointer_cast<PriorityReservoirSettings>(settings);
    if (!zones) continue;
    for (std::size_t zone = 0; zone < zones->getVectorOfHydrologicalZones().size(); ++zone) {
      addSerie(snapshot, name + "|zone" + std::to_string(zone),
               *zones->getVectorOfHydrologicalZones()[zone].serie);
    }
    for (unsigned int month = 0; zones->initedVectorOfHydrologicalZonesMonthly() && month < 12;
         ++month) {
      const auto& monthly = zones->getVectorOfHydrologicalZonesMonthly(month);
      for (std::size_t zone = 0; zone < monthly.size(); ++zone) {
        addSerie(snapshot, name + "|month" + std::to_string(month) + "|" + std::to_string(zone),
                 *monthly[zone].serie);
      }
    }
  }
  return snapshot;
}

// The open project closed and opened again from path.
const Scenario& reopen(const std::string& path) {
  ProjectFunctions::closeProject();
  const auto scenarios = LoadProject::load(path, nullptr);
  for (unsigned int i = 0; i < scenarios.size(); ++i) {
    ScenarioManager::getInstance().addScenery(i, scenarios[i]);
  }
  return *ScenarioManager::getInstance().mappingScenery(0);
}

}  // namespace

TEST_F(DatabaseProjectTest, NewDatabaseHasTheTablesColumnsAndIndexesAndReopeningChangesNothing) {
  const std::string path = folder.file("schema.sjson.sqlite");
  {
    auto database = StorageManager::createStorage(path);
    EXPECT_EQ(rowsOf(*database, "PRAGMA table_info(\"SerieOutput\")").size(), 11u);
    std::vector<std::string> columns;
    SQLite::Statement info(*database,
                           "PRAGMA table_info(\"HidrologicalStatePerReservoirMonthlySeries\")");
    while (info.executeStep()) {
      columns.push_back(info.getColumn(1).getString());
      EXPECT_EQ(info.getColumn(3).getInt(), 1) << "NOT NULL";
    }
    EXPECT_EQ(columns, (std::vector<std::string>{"id", "date", "julian", "value", "index",
                                                 "monthIndex", "elementID", "userID"}));
    EXPECT_EQ(
        rowsOf(*database,
               "SELECT name FROM sqlite_master WHERE type = 'index' AND "
               "name NOT LIKE 'sqlite_%' ORDER BY name"),
        (std::vector<std::string>{"cavlite_enabled_elementid", "element_scenid_databaseid",
                                  "hydrological_state_lite_type_elementid", "scenario_databaseid",
                                  "serieinputlite_type_elementid_enabled",
                                  "serieoutputlite_type_elementid_windowid_enabled",
                                  "serieoutputlite_type_elementid_windowid_timeStampHash",
                                  "serietypelite_unit_type", "unitlite_name"}));
    EXPECT_EQ(rowsOf(*database,
                     "SELECT \"table\" FROM pragma_foreign_key_list('SerieInput') "
                     "ORDER BY \"table\""),
              (std::vector<std::string>{"Element", "SerieType", "Users"}));
  }
  const auto schema = [&] {
    SQLite::Database database(path, SQLite::OPEN_READONLY);
    return rowsOf(database, "SELECT sql FROM sqlite_master ORDER BY name");
  };
  const auto before = schema();
  StorageManager::createStorage(path);
  EXPECT_EQ(schema(), before);
}

TEST_F(DatabaseProjectTest, AnOlderTableGainsItsMissingColumnsAndKeepsItsRows) {
  const std::string path = folder.file("old.sqlite");
  {
    SQLite::Database old(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    old.exec("CREATE TABLE \"Unit\" (\"id\" INTEGER PRIMARY KEY NOT NULL)");
    old.exec("INSERT INTO Unit (id) VALUES (7)");
  }
  auto database = StorageManager::createStorage(path);
  EXPECT_EQ(rowsOf(*database, "SELECT id || ':' || name FROM Unit"),
            std::vector<std::string>{"7:"});
}

TEST_F(DatabaseProjectTest, RuleProjectComesBackIdenticalWithAndWithoutResults) {
  const auto network = installRealisticProject();
  const auto inputs = inputsOf(*network->net.scenario);
  const std::string path = folder.file("rio.sjson");
  // The project file carries the setting, which opening the project restores.
  ConfigurationHeader::setLoadResults(false);
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  // Every element's row key is its databaseId.
  for (const auto& element : network->net.scenario->getElements()) {
    EXPECT_EQ(DatabaseSearch::getElementCodeInDatabase(SQLStorage::getInstance().getStorageRef(),
                                                       *element),
              element->getDatabaseId());
  }
  SQLStorage::deleteInstance();

  install(LoadProject::load(path, nullptr));
  const auto scenario = ScenarioManager::getInstance().mappingScenery(0);
  EXPECT_EQ(firstDifference(inputsOf(*scenario), inputs), "");
  long lastStep = 0;
  ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(
      0, nullptr, [&](long done, long) { return (lastStep = done) >= 0; }));
  EXPECT_EQ(lastStep, 100);
  const auto results = resultsOf(*scenario);
  ASSERT_FALSE(results.empty());
  SQLStorage::deleteInstance();

  install(LoadProject::load(path, nullptr));
  EXPECT_EQ(firstDifference(inputsOf(*ScenarioManager::getInstance().mappingScenery(0)), inputs),
            "");
  // Without loadResults the results are what the project file alone gives.
  EXPECT_EQ(firstDifference(resultsOf(*ScenarioManager::getInstance().mappingScenery(0)),
                            resultsOf(*JsonProjectLoader::load(path).front())),
            "");
  ConfigurationHeader::setLoadResults(true);
  ASSERT_TRUE(SaveProject::save(path, nullptr));
  install(LoadProject::load(path, nullptr));
  const auto& reloaded = *ScenarioManager::getInstance().mappingScenery(0);
  EXPECT_EQ(firstDifference(inputsOf(reloaded), inputs), "");
  EXPECT_EQ(firstDifference(resultsOf(reloaded), results), "");
}

TEST_F(DatabaseProjectTest, TwoRunsAreToldApartByTheirHashAndEachLoadsBack) {
  ConfigurationHeader::setSaveOnlyOneResults(false);
  const auto network = installRealisticProject(1932);
  const auto& scenario = network->net.scenario;
  const std::string path = folder.file("runs.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  const auto progress = [](long, long) { return true; };
  ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, progress));
  const auto first = resultsOf(*scenario);
  network->reservoirs.front()->getReservoirInfo().initVol *= 0.5;
  ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, progress));
  const auto second = resultsOf(*scenario);
  ASSERT_NE(firstDifference(first, second), "");

  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto hashes =
      DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  ASSERT_EQ(hashes.size(), 2u);
  EXPECT_NE(hashes[0], hashes[1]);
  EXPECT_EQ(DatabaseSearch::getMinDateOfHash(storage, hashes[0]), Date(1931, 1, 1));
  EXPECT_EQ(DatabaseSearch::getMaxDateOfHash(storage, hashes[1]), Date(1932, 12, 1));
  EXPECT_THROW_TEXT(DatabaseSearch::getMaxDateOfHash(storage, "0"), std::invalid_argument,
                    "DatabaseSearch::getMaxDateOfHash(): unknown hash");
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, hashes[0]);
  EXPECT_EQ(firstDifference(resultsOf(*scenario), first), "");
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, hashes[1]);
  EXPECT_EQ(firstDifference(resultsOf(*scenario), second), "");
}

TEST_F(DatabaseProjectTest, DeletingTheCurrentScenarioFromTheDatabaseRemovesItsRows) {
  const auto network = installRealisticProject(1931);
  const std::string path = folder.file("del.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  ASSERT_GT(countRows(path + ".sqlite", "SerieInput"), 0);
  ScenarioManager::getInstance().deleteCurrentScenery(true);
  EXPECT_EQ(ScenarioManager::getInstance().getNumberOfSceneries(), 0u);
  for (const char* table : {"Scenario", "Element", "SerieInput", "Cav"}) {
    EXPECT_EQ(countRows(path + ".sqlite", table), 0) << table;
  }
}

TEST_F(DatabaseProjectTest, ASerieOfAnUnknownTypeAndUnitPairIsRefused) {
  auto storage = StorageManager::createStorage(folder.file("x.sqlite"));
  const auto serie = std::make_shared<Serie>(
      Interval(Date(2000, 1, 1), Date(2000, 2, 1), Vocabulary::of(Periodicity::monthly)),
      Vocabulary::of(SerieType::demand), Vocabulary::of(Unit::litres));
  EXPECT_THROW(SerieSaver::saveInputSeries(*storage, {serie}, {}, "t", 1, 1), std::out_of_range);
}

TEST_F(DatabaseProjectTest, PriorityProjectComesBackIdenticalWithAndWithoutResults) {
  install({everyKindPriorityProject()});
  const auto& made = *ScenarioManager::getInstance().mappingScenery(0);
  const auto inputs = inputsOf(made), goals = goalsOf(made);
  ASSERT_EQ(goals.size(), 7u * 3u + 2u + 24u);
  const std::string path = folder.file("prioridades.sjson");
  ASSERT_TRUE(ProjectFunctions::saveJsonProjectAsWithoutOlderDatabase(path, nullptr));

  const Scenario& opened = reopen(path);
  EXPECT_EQ(firstDifference(inputsOf(opened), inputs), "");
  EXPECT_EQ(firstDifference(goalsOf(opened), goals), "");
  ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, [](long, long) {
    return true;
  })) << opened.getSceneryStatus().getName();
  const auto results = resultsOf(opened);
  ASSERT_FALSE(results.empty());
  ASSERT_TRUE(SaveProject::save(path, nullptr));

  const Scenario& withResults = reopen(path);
  EXPECT_EQ(firstDifference(inputsOf(withResults), inputs), "");
  EXPECT_EQ(firstDifference(goalsOf(withResults), goals), "");
  EXPECT_EQ(firstDifference(resultsOf(withResults), results), "");

  ConfigurationHeader::setLoadResults(false);
  ASSERT_TRUE(SaveProject::save(path, nullptr));
  const Scenario& withoutResults = reopen(path);
  EXPECT_FALSE(ConfigurationHeader::isLoadResults());
  EXPECT_EQ(firstDifference(inputsOf(withoutResults), inputs), "");
  EXPECT_EQ(firstDifference(goalsOf(withoutResults), goals), "");
  EXPECT_TRUE(resultsOf(withoutResults).empty());
}
