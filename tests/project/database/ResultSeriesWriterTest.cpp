#include <gtest/gtest.h>

#include "project/database/DatabaseException.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/DatabaseUpdate.h"
#include "project/database/SaveProject.h"
#include "support/ExpectThrow.h"

using namespace databasetest;

namespace {

class ResultSeriesWriterTest : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    network = installRealisticProject(1931);
  }

  // The realistic rule project over 1931, saved without results, then run and stored once.
  void saveAndRun() {
    ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
    ASSERT_EQ(countRows(database(), "SerieOutput"), 0);
    ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, keepGoing));
  }

  long long enabledOutputRows() const {
    SQLite::Database reader(database(), SQLite::OPEN_READONLY);
    return reader.execAndGet("SELECT COUNT(*) FROM SerieOutput WHERE enabled = 1").getInt64();
  }

  std::string database() const { return path + ".sqlite"; }

  static long long valuesOf(const Scenario& scenario) {
    long long values = 0;
    for (const auto& element : scenario.getElements()) {
      if (!element->isEnabled()) continue;
      for (const auto& serie : element->getVectorOfSeries(0)) values += serie->size();
    }
    return values;
  }

  std::function<bool(long, long)> keepGoing = [](long, long) { return true; };
  std::unique_ptr<RealisticNetwork> network;
  std::string path = folder.file("writer.sjson");
};

}  // namespace

TEST_F(ResultSeriesWriterTest, EveryValueIsOneRowAndComesBackByItsRunsHash) {
  saveAndRun();
  const auto& scenario = network->net.scenario;
  EXPECT_EQ(countRows(database(), "SerieOutput"), valuesOf(*scenario));
  const auto stored = resultsOf(*scenario);
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto hashes =
      DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  ASSERT_EQ(hashes.size(), 1u);
  for (const auto& element : scenario->getElements()) element->clearOutputSeries();
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, hashes.front());
  EXPECT_EQ(firstDifference(resultsOf(*scenario), stored), "");
  // A row tells its day twice, as text and as julian number (2426343 is 1 January 1931).
  SQLite::Statement first(storage,
                          "SELECT date, julian, windowid, enabled, timeStampHash FROM SerieOutput "
                          "ORDER BY julian, id LIMIT 1");
  ASSERT_TRUE(first.executeStep());
  EXPECT_EQ(first.getColumn(0).getString(), "1931-01-01");
  EXPECT_EQ(first.getColumn(1).getInt64(), 2426343);
  EXPECT_EQ(first.getColumn(2).getInt64(), 0);
  EXPECT_EQ(first.getColumn(3).getInt(), 1);
  EXPECT_EQ(first.getColumn(4).getString(), hashes.front());
}

TEST_F(ResultSeriesWriterTest, ASecondRunReplacesTheFirstOrKeepsItAsHistory) {
  struct Case {
    bool saveOnlyOne;
    long long runsKept;  // rows of how many runs stay in the table
  };
  for (const Case& c : {Case{true, 1}, Case{false, 2}}) {
    SCOPED_TRACE(c.saveOnlyOne ? "one result kept" : "history kept");
    ConfigurationHeader::setSaveOnlyOneResults(c.saveOnlyOne);
    path = folder.file(c.saveOnlyOne ? "one.sjson" : "history.sjson");
    for (const auto& element : network->net.scenario->getElements()) element->clearOutputSeries();
    saveAndRun();
    ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, keepGoing));
    const long long oneRun = valuesOf(*network->net.scenario);
    EXPECT_EQ(countRows(database(), "SerieOutput"), c.runsKept * oneRun);
    EXPECT_EQ(enabledOutputRows(), oneRun);
  }
}

TEST_F(ResultSeriesWriterTest, AnUnknownElementIsRefusedAndTheForeignKeyChecksStayOn) {
  saveAndRun();
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto& element = network->net.scenario->getElements().front();
  const long long before = countRows(database(), "SerieOutput");
  EXPECT_THROW_TEXT(DatabaseUpdate::updateOutputSerie(storage, 999999,
                                                      *element->getVectorOfSeries(0).front(), 0,
                                                      "2001-01-01T00:00:00", "hash"),
                    DatabaseException,
                    "Ocorreu algum erro na operação do banco de dados do projeto.");
  EXPECT_EQ(countRows(database(), "SerieOutput"), before);
  // A store switches the per-row checks off for its transaction only.
  EXPECT_EQ(storage.execAndGet("PRAGMA foreign_keys").getInt(), 1);
  ScenarioManager::updateSceneryResultsInDatabase(network->net.scenario, storage, nullptr);
  EXPECT_EQ(storage.execAndGet("PRAGMA foreign_keys").getInt(), 1);
  // And every row it wrote points at rows that exist.
  SQLite::Statement violations(storage, "PRAGMA foreign_key_check(SerieOutput)");
  EXPECT_FALSE(violations.executeStep());
}
