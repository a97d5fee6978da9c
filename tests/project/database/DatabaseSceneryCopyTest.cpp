#include <gtest/gtest.h>

#include "core/KOVACoreProgressBar.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseLoadScenario.h"
#include "project/database/DatabaseLoadScenarioFactory.h"
#include "project/database/DatabaseSceneryCopy.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/SaveProject.h"
#include "support/ExpectThrow.h"

using namespace databasetest;
using DatabaseSceneryCopyTest = DatabaseTest;

namespace {

// A copy of scenario with every input series emptied, filled again from the database.
std::shared_ptr<Scenario> reloaded(const Scenario& scenario) {
  auto fresh = scenario.copy();
  for (const auto& element : fresh->getElements()) {
    for (const auto& serie : element->getVectorOfInputSeries()) serie->clear();
    if (auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      reservoir->getReservoirInfo().cav.clear();
    }
  }
  auto& storage = SQLStorage::getInstance().getStorageRef();
  long done = 0;
  DatabaseLoadScenarioFactory::make(fresh->getScenarioType().getName(), fresh)
      ->load(storage, DatabaseSearch::getMapOfSerieWithUnitToDatabaseID(storage), nullptr, done, 0);
  return fresh;
}

}  // namespace

TEST_F(DatabaseSceneryCopyTest, ACopiedScenarioGetsRowsOfItsOwnThatReadBackAsTheSource) {
  const auto network = installRealisticProject(1932);
  const auto& source = network->net.scenario;
  const std::string path = folder.file("copy.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  const long long inputRows = countRows(path + ".sqlite", "SerieInput");
  const long long curveRows = countRows(path + ".sqlite", "Cav");

  auto copy = source->copy();
  copy->setName("Cópia");
  DatabaseInsert::insertSceneryEntryInDatabase(*copy);
  ASSERT_NE(copy->getDatabaseId(), source->getDatabaseId());
  long steps = 0;
  ASSERT_TRUE(DatabaseSceneryCopy::sceneryCopy(copy, [&](long done, long total) {
    EXPECT_EQ(total, static_cast<long>(copy->getElements().size()));
    return (steps = done) > 0;
  }));
  EXPECT_EQ(steps, static_cast<long>(copy->getElements().size()));
  EXPECT_EQ(countRows(path + ".sqlite", "SerieInput"), 2 * inputRows);
  EXPECT_EQ(countRows(path + ".sqlite", "Cav"), 2 * curveRows);
  for (std::size_t i = 0; i < copy->getElements().size(); ++i) {
    EXPECT_NE(copy->getElements()[i]->getDatabaseId(), source->getElements()[i]->getDatabaseId());
  }
  EXPECT_EQ(firstDifference(inputsOf(*reloaded(*copy)), inputsOf(*source)), "");
}

TEST_F(DatabaseSceneryCopyTest, ACancelledCopyWritesNothingAndKeepsTheKeys) {
  const auto network = installRealisticProject(1931);
  const std::string path = folder.file("cancel.sjson");
  ASSERT_TRUE(SaveProject::saveAs(path, nullptr));
  auto copy = network->net.scenario->copy();
  DatabaseInsert::insertSceneryEntryInDatabase(*copy);
  const auto before = contentOf(path + ".sqlite");
  const unsigned int lastKey = copy->getElements().back()->getDatabaseId();
  EXPECT_FALSE(DatabaseSceneryCopy::sceneryCopy(copy, [](long done, long) { return done < 3; }));
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
  EXPECT_EQ(copy->getElements().back()->getDatabaseId(), lastKey);

  copy->setDatabaseId(0);
  EXPECT_THROW_TEXT(static_cast<void>(DatabaseSceneryCopy::sceneryCopy(copy, nullptr)),
                    std::invalid_argument,
                    "DatabaseSceneryCopy::sceneryCopy(): scenario not in the database");
  EXPECT_EQ(contentOf(path + ".sqlite"), before);
}
