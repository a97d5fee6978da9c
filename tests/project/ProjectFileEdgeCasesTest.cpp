#include <gtest/gtest.h>

#include "common/PeriodWalker.h"
#include "core/ExecutionMethod.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "project/JsonLoadElement.h"
#include "project/JsonLoadException.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveElement.h"
#include "project/ProjectFileSupport.h"
#include "rules/VolDepOneReleaseRule.h"
#include "support/ExpectThrow.h"

using projectfile::replaced;
using ProjectFileEdgeCases = projectfile::ProjectFileTest;

namespace {

std::string golden() { return projectfile::readFile(projectfile::goldenPath()); }

std::shared_ptr<Scenario> loadVale(const std::string& text) {
  return JsonProjectLoader::loadText(text).at(0);
}

const std::string kFozItem = "{\"node\":{\"x\":8.00000000000000000";

}  // namespace

// A node item without its wrapper is refused, naming the item: skipping it would check and run
// another network than the file's, with the links of the missing node gone too.
TEST_F(ProjectFileEdgeCases, ANodeItemWithoutItsWrapperIsRefusedNamingTheItem) {
  for (const auto& [to, found] :
       {std::pair<std::string, std::string>{"{\"nodo\":{\"x\":8.00000000000000000", ""},
        {"{\"node\":null,\"n\":{\"x\":8.00000000000000000", ", found null"}}) {
    SCOPED_TRACE(to);
    EXPECT_THROW_TEXT(
        loadVale(replaced(golden(), kFozItem, to)), JsonLoadException,
        "/scenarios/0/nodes/3 (scenario \"Vale\"): the key \"node\" is required" + found);
  }
  EXPECT_TRUE(loadVale(replaced(golden(), "\"nodes\":[", "\"nodos\":["))->getElements().empty());
}

TEST_F(ProjectFileEdgeCases, AbsentOptionalObjectsKeepWhatWasThere) {
  const std::string text = replaced(
      replaced(golden(), "\"project\":{\"configuration\"", "\"projeto\":{\"configuration\""),
      "\"ExecutionMethod\":{\"ExecutionMethod\":{\"windowSize\"",
      "\"ExecutionMethod\":{\"Outro\":{\"windowSize\"");
  const auto vale = loadVale(text);
  EXPECT_EQ(ConfigurationHeader::getUtmZone(), 24u);
  // The windowed method as made for the interval: every year a window, inflows as they are.
  EXPECT_EQ(
      vale->getExecutionMethod()->getYearsDate(),
      (std::vector<std::pair<Date, bool>>{{Date(2001, 1, 1), true}, {Date(2002, 1, 1), true}}));
  EXPECT_FALSE(vale->getExecutionMethod()->getZeroContribution());
  // A null is no value: the node stays where a new one stands.
  const auto serra = loadVale(replaced(golden(), "\"x\":1.50000000000000000", "\"x\":null"));
  EXPECT_EQ(std::static_pointer_cast<Node>(serra->getElement(0))->getX(), 0.0);
}

TEST_F(ProjectFileEdgeCases, TheEmptyValueIsAPlainNumberBothWays) {
  const std::string text =
      replaced(golden(), "\"maxVol\":120.00000000000000000", "\"maxVol\":-999.000000");
  const auto scenarios = JsonProjectLoader::loadText(text);
  EXPECT_EQ(
      std::static_pointer_cast<Reservoir>(scenarios[0]->getElement(0))->getReservoirInfo().maxVol,
      -999.0);
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), text);
}

TEST_F(ProjectFileEdgeCases, TheObsoleteLinkLimitFillsTheLimitSeriesAndIsNotWrittenBack) {
  const std::string plain = "\"union\":0,\"bidirectional\":0";
  const auto scenarios = JsonProjectLoader::loadText(
      replaced(golden(), plain, "\"linkTrafficLimit\":{\"maxValue\":9.5}," + plain));
  const auto& river = scenarios[0]->getElement(5);
  std::size_t periods = 0;
  PeriodWalker::forEach(scenarios[0]->getInterval(), [&](const Date& date) {
    EXPECT_EQ(river->getInputSerie(SerieType::linkLimit)->getValue(date), 9.5);
    ++periods;
  });
  EXPECT_EQ(periods, 24u);
  EXPECT_TRUE(ConfigurationHeader::isOldTrafficLimit(7));
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), golden());
  // Without a value the object changes nothing.
  JsonProjectLoader::loadText(replaced(golden(), plain, "\"linkTrafficLimit\":{}," + plain));
  EXPECT_FALSE(ConfigurationHeader::isOldTrafficLimit(7));
}

// Element 0 is a reservoir: a rule without a dependency must not come back depending on it.
TEST_F(ProjectFileEdgeCases, ARuleWithoutDependencyStaysWithout) {
  const std::string text = replaced(golden(), "\"Reservoir\":1", "\"Reservoir\":null");
  const auto scenarios = JsonProjectLoader::loadText(text);
  const auto settings = Scenario::getSettings<ReservoirRuleSettings>(
      scenarios[0]->getElement(0), scenarios[0]->getSettingsManager());
  EXPECT_FALSE(std::static_pointer_cast<VolDepOneReleaseRule>(settings->getRule())
                   ->getReservoirDependency());
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), text);
}

TEST_F(ProjectFileEdgeCases, TheCallersExtraInformationTravelsWithEachElement) {
  JsonSaveElement::setLambdaExtraInfoElement([](unsigned int id, const std::shared_ptr<Scenario>&) {
    return "\"layer\":" + std::to_string(10 * id);
  });
  const std::string text = JsonSaveBuilder::toJson(JsonProjectLoader::loadText(golden()));
  std::map<unsigned int, int> layers;
  JsonLoadElement::setLambdaExtraInfoElement(
      [&](const nlohmann::json& element, unsigned int id, const std::shared_ptr<Scenario>&) {
        layers[id] = element.at("layer").get<int>();
      });
  JsonProjectLoader::loadText(text);
  EXPECT_NE(text.find("\"elementType\":\"Dreno\",\"layer\":30,\"scenarioConf\""),
            std::string::npos);
  EXPECT_EQ(layers, (std::map<unsigned int, int>{
                        {0, 0}, {1, 10}, {2, 20}, {3, 30}, {4, 40}, {5, 50}, {6, 60}}));
}

TEST_F(ProjectFileEdgeCases, ASelectionWithoutLabelIsSkipped) {
  const auto vale = loadVale(replaced(golden(), "{\"label\":\"Usos\",", "{\"label\":null,"));
  EXPECT_EQ(vale->getLabelElementsSelects(),
            (std::map<std::string, std::vector<int>>{{"Açudes", {0, 1}}}));
}
