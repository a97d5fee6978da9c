#include <gtest/gtest.h>

#include "common/Serie.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "vocabulary/Vocabulary.h"

using JsonSaveBuilderProject = projectfile::ProjectFileTest;
using B = JsonSaveBuilder;

TEST(JsonSaveBuilder, ValuesAsTheFormatWritesThem) {
  const std::pair<std::string, std::string> cases[] = {
      {B::makeJsonKey("k"), "\"k\":"},
      {B::makeStringValue("Três Marias"), "\"Três Marias\""},
      {B::makeJsonKeyValueString("n", "Sobradinho"), "\"n\":\"Sobradinho\""},
      {B::makeJsonKeyValue("o", "{}"), "\"o\":{}"},
      // 17 decimals in fixed notation: the digits beyond a double's precision show.
      {B::makeJsonKeyValue("v", 0.1), "\"v\":0.10000000000000001"},
      {B::makeJsonKeyValue("v", 2.5), "\"v\":2.50000000000000000"},
      {B::makeJsonKeyValue("v", -0.25), "\"v\":-0.25000000000000000"},
      {B::makeJsonKeyValue("v", 1e6 / 3.0), "\"v\":333333.33333333331393078"},
      // The empty value keeps printf's six decimals.
      {B::makeJsonKeyValue("v", -999.0), "\"v\":-999.000000"},
      {B::makeJsonKeyValue("b", true), "\"b\":1"},
      {B::makeJsonKeyValue("b", false), "\"b\":0"},
      {B::makeJsonKeyValue("u", 4294967295u), "\"u\":4294967295"},
      {B::makeJsonKeyValue("d", -3), "\"d\":-3"},
      {B::makeVectorOfFloatingValues({}), "[]"},
      {B::makeVectorOfFloatingValues({1.5, -999.0}), "[1.50000000000000000,-999.000000]"},
      {B::makeVectorOfIntegerValues(std::vector<int>{4, -1, 0}), "[4,-1,0]"},
  };
  for (const auto& [made, expected] : cases) EXPECT_EQ(made, expected);
}

TEST(JsonSaveBuilder, SerieByIncreasingJulianDayWithoutItsInterval) {
  const Interval interval(Date(2001, 1, 1), Date(2001, 12, 1),
                          Vocabulary::of(Periodicity::monthly));
  Serie serie(interval, Vocabulary::of(SerieType::releasedFlow),
              Vocabulary::of(Unit::cubicMetresPerSecond));
  EXPECT_EQ(B::makeSerie(serie), "\"Vazão liberada\":[]");
  serie.setValue(Date(2001, 3, 1), 7.5);
  serie.setValue(Date(2001, 1, 1), -999.0);
  // 1 January 2001 is julian day 2451911, 1 March 2001 is 59 days later.
  EXPECT_EQ(B::makeSerie(serie),
            "\"Vazão liberada\":[{\"julianDay\":2451911,\"value\":-999.000000},"
            "{\"julianDay\":2451970,\"value\":7.50000000000000000}]");
}

TEST_F(JsonSaveBuilderProject, ProjectWithoutScenarios) {
  const std::string text =
      "{\"scenarios\":[],\"project\":{\"configuration\":{\"precision\":5,\"numOfLinesInChart\":50,"
      "\"saveResults\":0,\"saveOnlyOneResults\":1,\"keepInputSerieHistorical\":0,"
      "\"saveEnableDocker\":1,\"saveUrlToWebService\":\"localhost\",\"saveUrlPortToWebService\":80,"
      "\"loadResults\":1,\"utmZone\":24,\"utmHemisphere\":\"Sul\",\"maxNumberOfErrors\":20,"
      "\"simulationURL\":\"\",\"keepTheSimulationFilesAfterExecution\":0,\"CoreReservoirColors\":["
      "{\"r\":178,\"g\":246,\"b\":61,\"value\":100.00000000000000000},"
      "{\"r\":0,\"g\":100,\"b\":0,\"value\":50.00000000000000000},"
      "{\"r\":255,\"g\":13,\"b\":0,\"value\":0.00000000000000000}]}}}";
  EXPECT_EQ(B::toJson({}), text);
  projectfile::TemporaryFolder folder;
  ASSERT_TRUE(B::save(folder.file("empty.sjson")));
  EXPECT_EQ(projectfile::readFile(folder.file("empty.sjson")), text);

  ScenarioManager::getInstance().setNextScenarioId(9);
  EXPECT_TRUE(JsonProjectLoader::load(folder.file("empty.sjson")).empty());
  EXPECT_EQ(ScenarioManager::getInstance().getNextScenarioId(), 1u);
}

TEST_F(JsonSaveBuilderProject, SavingWhereNoFileCanBeMadeAnswersFalse) {
  projectfile::TemporaryFolder folder;
  EXPECT_FALSE(B::save(folder.file("missing/folder/p.sjson")));
}
