#include <gtest/gtest.h>

#include "core/Demand.h"
#include "core/Link.h"
#include "core/LinkRuleSettings.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/ExecutionWindowed.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "rules/ConstReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "scenario/RuleScenario.h"
#include "vocabulary/Vocabulary.h"

using projectfile::ProjectFileTest;

namespace {

// The project of tests/data/project/vale.sjson, written by hand from the format's tables: the
// scenario "Vale" (two reservoirs, a town, an outlet, a bidirectional canal and two reaches, run
// in windows) and the empty scenario "Vazio", with a configuration that differs from the
// defaults in every key.
class GoldenProject : public ProjectFileTest {
 protected:
  void SetUp() override {
    ProjectFileTest::SetUp();
    scenarios = JsonProjectLoader::load(projectfile::goldenPath());
    ASSERT_EQ(scenarios.size(), 2u);
    vale = scenarios[0];
  }

  template <typename T>
  std::shared_ptr<T> element(unsigned int id) const {
    auto element = std::dynamic_pointer_cast<T>(vale->getElement(id));
    EXPECT_TRUE(element) << id;
    return element;
  }
  template <typename T>
  std::shared_ptr<T> settings(unsigned int id) const {
    return Scenario::getSettings<T>(vale->getElement(id), vale->getSettingsManager());
  }

  std::vector<std::shared_ptr<Scenario>> scenarios;
  std::shared_ptr<Scenario> vale;
};

using Allocation = RuleSettings::AllocationMatrix;

}  // namespace

TEST_F(GoldenProject, ScenariosAndMethods) {
  EXPECT_TRUE(std::dynamic_pointer_cast<RuleScenario>(vale));
  EXPECT_EQ(vale->getName(), "Vale");
  EXPECT_EQ(vale->getId(), 7u);
  EXPECT_EQ(vale->getDatabaseId(), 3u);
  EXPECT_EQ(vale->getInterval(),
            Interval(Date(2001, 1, 1), Date(2002, 12, 1), Vocabulary::of(Periodicity::monthly)));
  const auto& method = *vale->getExecutionMethod();
  EXPECT_TRUE(dynamic_cast<const ExecutionWindowed*>(&method));
  EXPECT_EQ(method.getWindowSize(), 12u);
  EXPECT_EQ(method.getInitialMonth(), 1u);
  EXPECT_EQ(method.getYearsDate(), (std::vector<std::pair<Date, bool>>{{Date(2001, 1, 1), true},
                                                                       {Date(2002, 1, 1), false}}));
  EXPECT_TRUE(method.getZeroContribution());
  ASSERT_EQ(vale->getVectorOfPathInfo().size(), 1u);
  EXPECT_EQ(vale->getVectorOfPathInfo()[0].filename, "rio.shp");
  EXPECT_EQ(vale->getVectorOfPathInfo()[0].fullpath, "/dados/vale/rio.shp");
  EXPECT_EQ(vale->getPumpingCostsConfiguration(), (std::vector<double>{0.0, 1.5, 0.0, 0.0}));
  EXPECT_EQ(vale->getLabelElementsSelects(),
            (std::map<std::string, std::vector<int>>{{"Açudes", {0, 1}}, {"Usos", {2}}}));

  const Scenario& empty = *scenarios[1];
  EXPECT_EQ(empty.getName(), "Vazio");
  EXPECT_EQ(empty.getId(), 2u);
  EXPECT_EQ(empty.getExecutionMethod()->getExecutionType().getType(), ExecutionType::continuous);
  EXPECT_TRUE(empty.getElements().empty());
  EXPECT_TRUE(empty.getPumpingCostsConfiguration().empty());
  EXPECT_EQ(ScenarioManager::getInstance().getNextScenarioId(), 8u);
}

TEST_F(GoldenProject, Nodes) {
  ASSERT_EQ(vale->getElements().size(), 7u);
  const auto serra = element<Reservoir>(0);
  EXPECT_EQ(serra->getName(), "Serra");
  EXPECT_EQ(serra->getDatabaseId(), 10u);
  EXPECT_EQ(serra->getX(), 1.5);
  EXPECT_EQ(serra->getY(), -2.25);
  const ReservoirInfo& info = serra->getReservoirInfo();
  EXPECT_EQ(std::make_tuple(info.initVol, info.minVol, info.maxVol, info.maxRelease),
            std::make_tuple(80.0, 10.0, 120.0, 99999.0));
  EXPECT_FALSE(info.isolated);
  EXPECT_EQ(info.regressionTech->getName(), "CubicSpline");
  ASSERT_EQ(serra->getInstitutionalIDs().size(), 1u);
  EXPECT_EQ(serra->getInstitutionalIDs()[0].id, 12);
  EXPECT_EQ(serra->getInstitutionalIDs()[0].owner, "ANA");
  const auto serraRule = std::dynamic_pointer_cast<VolDepOneStaticReleaseRule>(
      settings<ReservoirRuleSettings>(0)->getRule());
  ASSERT_TRUE(serraRule);
  EXPECT_EQ(serraRule->getReservoirDependency(), vale->getElement(1));
  EXPECT_EQ(serraRule->getVectorOfVolDepOneReleaseStruct(),
            (std::vector<VolDepOneReleaseStruct>{{50.0, {1.0}}, {100.0, {3.0}}}));
  EXPECT_EQ(settings<ReservoirRuleSettings>(0)->getAllocation(),
            (Allocation{{0, {0.0, 100.0}}, {4, {0.0, 100.0}}}));

  const auto acude = element<Reservoir>(1);
  EXPECT_TRUE(acude->getReservoirInfo().isolated);
  EXPECT_EQ(acude->getReservoirInfo().maxRelease, 40.0);
  EXPECT_TRUE(acude->getInstitutionalIDs().empty());
  const auto acudeRule =
      std::dynamic_pointer_cast<ConstReleaseRule>(settings<ReservoirRuleSettings>(1)->getRule());
  ASSERT_TRUE(acudeRule);
  EXPECT_EQ(acudeRule->getRelease(), 2.5);

  const auto town = element<HumanDemand>(2);
  EXPECT_EQ(town->getDemandReturnPercentages(), std::vector<double>{20.0});
  EXPECT_EQ(settings<RuleSettings>(2)->getElementId(), 2u);
  EXPECT_EQ(settings<RuleSettings>(2)->getAllocation(),
            (Allocation{{2, {0.0, 10.0}}, {6, {0.0, 2.0}}}));
  EXPECT_TRUE(element<DrainDemand>(3)->getDemandReturnPercentages().empty());
}

TEST_F(GoldenProject, Links) {
  const auto canal = element<ArtificialLink>(4);
  EXPECT_EQ(canal->getUpstream(), vale->getElement(0));
  EXPECT_EQ(canal->getDownstream(), vale->getElement(1));
  EXPECT_TRUE(canal->getIsBidirectional());
  EXPECT_FALSE(canal->getIsUnion());
  EXPECT_EQ(canal->getLinkAddon()->getType(), LinkAddonType::none);
  EXPECT_EQ(canal->getSenseInfo().originalSourceVolumesRange, (std::vector<double>{60.0, 120.0}));
  EXPECT_EQ(canal->getSenseInfo().originalDestinyVolumesRange, (std::vector<double>{50.0, 100.0}));
  EXPECT_EQ(canal->getSenseInfo().senses, (std::vector<std::vector<int>>{{0, 1}, {0, 0}}));
  EXPECT_EQ(settings<LinkRuleSettings>(4)->getValues(), (std::vector<double>{0.0, 5.0}));

  const auto river = element<NaturalLink>(5);
  EXPECT_TRUE(river->getLateralContribution());
  EXPECT_TRUE(river->isEnabled());
  const auto lower = element<NaturalLink>(6);
  EXPECT_FALSE(lower->getLateralContribution());
  EXPECT_FALSE(lower->isEnabled());
  EXPECT_EQ(lower->getName(), "Rio baixo");
  EXPECT_EQ(lower->getDatabaseId(), 16u);

  // Each link stands in its nodes' lists.
  EXPECT_EQ(element<Reservoir>(1)->getUpstreamLinks(), std::vector<std::shared_ptr<Link>>{canal});
  EXPECT_EQ(element<Reservoir>(1)->getDownstreamLinks(), std::vector<std::shared_ptr<Link>>{river});
  EXPECT_EQ(element<HumanDemand>(2)->getDownstreamLinks(),
            std::vector<std::shared_ptr<Link>>{lower});
}

TEST_F(GoldenProject, Configuration) {
  using C = ConfigurationHeader;
  EXPECT_EQ(C::getPrecision(), 3u);
  EXPECT_EQ(C::getNumOfLinesInChart(), 40u);
  EXPECT_TRUE(C::isSaveResults());
  EXPECT_FALSE(C::isSaveOnlyOneResults());
  EXPECT_TRUE(C::isKeepInputSerieHistorical());
  EXPECT_FALSE(C::isSaveCheckEnableDocker());
  EXPECT_EQ(C::getUrlToWebService(), "kova.example.org");
  EXPECT_EQ(C::getUrlPortToWebService(), 8080u);
  EXPECT_FALSE(C::isLoadResults());
  EXPECT_EQ(C::getUtmZone(), 23u);
  EXPECT_EQ(C::getMaxNumberOfErrors(), 10u);
  EXPECT_EQ(C::getFolderToSaveSimulationModels(), "/tmp/modelos");
  EXPECT_TRUE(C::getKeepTheSimulationFilesAfterExecution());
  ASSERT_EQ(C::getCoreReservoirColors().size(), 2u);
  const auto& second = C::getCoreReservoirColors()[1];
  EXPECT_EQ(std::make_tuple(second.r, second.g, second.b, second.value),
            std::make_tuple(200u, 100u, 0u, 25.0));
  EXPECT_FALSE(C::isOldTrafficLimit(7));
}

TEST_F(GoldenProject, WrittenBackByteForByte) {
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios), projectfile::readFile(projectfile::goldenPath()));
}
