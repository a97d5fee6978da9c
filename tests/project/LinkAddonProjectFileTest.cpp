#include <gtest/gtest.h>

#include "core/ElementFactory.h"
#include "project/JsonLoadLinkAddonFactory.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveLinkAddonFactory.h"
#include "project/PriorityProjectSupport.h"
#include "project/ProjectFileSupport.h"

using projectfile::replaced;
using LinkAddonProject = projectfile::ProjectFileTest;

namespace {

std::string writeAddon(const std::shared_ptr<LinkAddon>& addon) {
  return JsonSaveLinkAddonFactory::make(addon)->toJson();
}

// The add-on that reading text gives a new link.
std::shared_ptr<LinkAddon> readAddon(const std::string& text) {
  const auto link = std::static_pointer_cast<Link>(ElementFactory::makeArtificialLink());
  const auto object = nlohmann::json::parse(text);
  JsonLoadLinkAddonFactory::make(object.at("linkAddonType").get<std::string>(), link)->load(object);
  return link->getLinkAddon();
}

std::string whole(int value) { return std::to_string(value) + ".00000000000000000"; }

// The cost row of flow (m³/s) in twoPumps(): flow · (10 + month) in each month.
std::string costRow(int flow) {
  std::string costs;
  for (int month = 0; month < 12; ++month) costs += "," + whole(flow * (10 + month));
  return "{\"costFlow\":" + whole(flow) + ",\"costsPerMonth\":[" + costs.substr(1) + "]}";
}

const std::string kTwoPumps =
    "{\"linkAddonType\":\"Bombeamento\",\"pumps\":["
    "{\"periods\":[{\"initialValue\":0,\"finalValue\":720},{\"initialValue\":720,"
    "\"finalValue\":1440}],\"flows\":[2.00000000000000000]},"
    "{\"periods\":[{\"initialValue\":360,\"finalValue\":1080}],\"flows\":[1.25000000000000000]}],"
    "\"flowCosts\":[" +
    costRow(0) + "," + costRow(2) + "," + costRow(4) + "]}";

}  // namespace

TEST(LinkAddonProjectFile, PumpsAndCostTableAsTheFormatWritesThem) {
  EXPECT_EQ(writeAddon(projectfile::twoPumps()), kTwoPumps);
  EXPECT_EQ(writeAddon(readAddon(kTwoPumps)), kTwoPumps);
}

// Every member of a pumping add-on may be missing: a pump then runs the whole day with no flow,
// a cost row holds zeros, and absent tables are empty.
TEST(LinkAddonProjectFile, AbsentPumpingMembersKeepTheirDefaults) {
  const auto blank = std::dynamic_pointer_cast<LinkAddonPumping>(
      readAddon("{\"linkAddonType\":\"Bombeamento\",\"pumps\":[{},{\"periods\":[],\"flows\":null}],"
                "\"flowCosts\":[{\"costFlow\":1.5}]}"));
  ASSERT_TRUE(blank);
  ASSERT_EQ(blank->getPumpVector().size(), 2u);
  const PumpingAddon& wholeDay = *blank->getPumpVector()[0];
  EXPECT_EQ(wholeDay.flow, 0.0);
  ASSERT_EQ(wholeDay.periods.size(), 1u);
  EXPECT_EQ(std::make_pair(wholeDay.periods[0]->initialValue, wholeDay.periods[0]->finalValue),
            std::make_pair(0u, 1440u));
  EXPECT_TRUE(blank->getPumpVector()[1]->periods.empty());
  ASSERT_EQ(blank->getFlowCostVector().size(), 1u);
  EXPECT_EQ(blank->getFlowCostVector()[0]->flow, 1.5);
  EXPECT_EQ(blank->getFlowCostVector()[0]->costs, (std::array<double, 12>{}));

  const auto empty = readAddon("{\"linkAddonType\":\"Bombeamento\"}");
  EXPECT_EQ(writeAddon(empty), "{\"linkAddonType\":\"Bombeamento\",\"pumps\":[],\"flowCosts\":[]}");
}

// A rule scenario keeps a pumping canal and the deficit costs of its pumping study, the empty
// value among them, through a load and a save.
TEST_F(LinkAddonProject, RuleScenarioKeepsItsPumpingCanalAndDeficitCosts) {
  const std::string deficits =
      "[[0.50000000000000000,-999.000000,2.25000000000000000,0.00000000000000000]]";
  const std::string text = replaced(
      replaced(projectfile::readFile(projectfile::goldenPath()), "{\"linkAddonType\":\"Nenhum\"}",
               kTwoPumps),
      "[[0.00000000000000000,1.50000000000000000,0.00000000000000000,0.00000000000000000]]",
      deficits);
  const auto scenarios = JsonProjectLoader::loadText(text);
  const auto& vale = scenarios.at(0);
  EXPECT_EQ(vale->getPumpingCostsConfiguration(), (std::vector<double>{0.5, -999.0, 2.25, 0.0}));
  const auto canal = std::static_pointer_cast<Link>(vale->getElement(4));
  ASSERT_EQ(canal->getLinkAddon()->getType(), LinkAddonType::pumping);
  const auto& pumping = static_cast<const LinkAddonPumping&>(*canal->getLinkAddon());
  EXPECT_EQ(pumping.getPumpVector().size(), 2u);
  EXPECT_EQ(pumping.getFlowCostVector().size(), 3u);
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), text);
  // An empty matrix of deficits leaves the scenario without costs.
  const auto none = JsonProjectLoader::loadText(replaced(text, deficits, "[]"));
  EXPECT_TRUE(none.at(0)->getPumpingCostsConfiguration().empty());
}
