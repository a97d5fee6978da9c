#include <gtest/gtest.h>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "core/ReservoirRuleSettings.h"
#include "core/RuleSettings.h"
#include "machinelearning/RegressionRandomForestAlgorithm.h"
#include "managers/AutomatedScenarioBuilder.h"
#include "managers/ConfigureRuleElementFromPriorityFactory.h"
#include "managers/DoConfigureRuleElementAddonFromRegressionAlgorithm.h"
#include "managers/MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer.h"
#include "operation/PriorityNetworkBuilder.h"
#include "project/JsonSaveBuilder.h"
#include "project/database/DatabaseTestSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"
#include "rules/KNNRegressionColVolumesReleaseRule.h"
#include "rules/RegressionRandomForestColVolumesReleaseRule.h"
#include "rules/RegressionTreeColVolumesReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "scenario/ConfigureRuleElementFromPriorityAddonFactory.h"
#include "scenario/ConfigureRuleElementFromPriorityRandomForestAddon.h"
#include "support/ExpectThrow.h"

using namespace databasetest;

namespace {

// A year by priorities over a cascade: the upper reservoir, fed by a seasonal river, serves a
// town of its own by a canal and passes water down the river to the lower one, which serves an
// irrigation demand by another canal; what the demands return and the river carries goes to the
// sea.
class RulesFromPriority : public DatabaseTest {
 protected:
  void SetUp() override {
    DatabaseTest::SetUp();
    ASSERT_TRUE(SaveProject::saveAs(folder.file("rules.sjson"), nullptr));
    upper = net.reservoir(20.0, 400.0, 150.0, 2, 0.6);
    lower = net.reservoir(10.0, 200.0, 60.0, 3, 0.5);
    PeriodWalker::forEach(net.interval(), [&](const Date& date) {
      upper->getInputSerie(SerieType::naturalIncrementalFlow)
          ->setValue(date, date.getMonth() <= 5 ? 40.0 : 6.0);
    });
    auto town = net.demand(12.0, 1);
    auto farms = net.demand(25.0, 4, ElementType::irrigationDemand);
    auto sea = net.node(ElementType::drain);
    net.link(upper, town, 0.0, 9999.0, ElementType::artificialLink);
    net.link(upper, lower);
    net.link(lower, farms, 0.0, 9999.0, ElementType::artificialLink);
    net.link(lower, sea);
    net.link(town, sea);
    net.link(farms, sea);
    install({net.scenario});
    ASSERT_TRUE(net.scenario->run(nullptr)) << findings(*net.scenario);
  }

  static std::string findings(Scenario& scenario) {
    std::string text = scenario.getSceneryStatus().getName();
    if (scenario.getSceneryCheck()) {
      for (const auto& error : scenario.getSceneryCheck()->getAllErrors()) {
        text += "; " + error.elementName + " " + error.message;
      }
    }
    return text;
  }

  // The rule scenario of the kind, each reservoir's model reading both volumes and averaging
  // `entries` entries.
  std::shared_ptr<RuleScenario> derived(ConfigureRuleElementType type, unsigned int entries = 1) {
    auto addon = ConfigureRuleElementFromPriorityAddonFactory::make(type);
    const std::vector<unsigned int> both{upper->getId(), lower->getId()};
    addon->setReservoirSystems({{upper->getId(), both}, {lower->getId(), both}});
    addon->setNumberOfEntriesForAverage(entries);
    net.scenario->setConfigureRuleElementFromPriorityAddon(addon);
    return AutomatedScenarioBuilder::makeRuleScenarioFromPriority(*net.scenario, nullptr);
  }

  template <typename Rule>
  static std::shared_ptr<Rule> ruleOf(const Scenario& scenario,
                                      const std::shared_ptr<Element>& reservoir) {
    return std::dynamic_pointer_cast<Rule>(
        Scenario::getSettings<ReservoirRuleSettings>(scenario.getElement(reservoir->getId()),
                                                     scenario.getSettingsManager())
            ->getRule());
  }

  // Every release of the reservoirs in scenario against the run's, within tolerance.
  void expectReleasesOfTheRun(const Scenario& scenario, double tolerance) {
    PeriodWalker::forEach(net.interval(), [&](const Date& date) {
      for (const auto& reservoir : {upper, lower}) {
        EXPECT_NEAR(released(scenario, reservoir, date), released(*net.scenario, reservoir, date),
                    tolerance)
            << reservoir->getName() << " " << date.toString("%Y-%m");
      }
    });
  }

  static double released(const Scenario& scenario, const std::shared_ptr<Element>& reservoir,
                         const Date& date) {
    return scenario.getElement(reservoir->getId())
        ->getOutputSerie(SerieType::releasedFlow, 0)
        ->getValue(date);
  }

  PriorityNetworkBuilder net{12};
  std::shared_ptr<Reservoir> upper;
  std::shared_ptr<Reservoir> lower;
};

}  // namespace

TEST_F(RulesFromPriority, TheSeriesKindReproducesTheReleasesOfTheRun) {
  long steps = 0;
  net.scenario->setConfigureRuleElementFromPriorityAddon(
      ConfigureRuleElementFromPriorityAddonFactory::makeDefaultAddon());
  const auto rules = AutomatedScenarioBuilder::makeRuleScenarioFromPriority(
      *net.scenario, [&](long, long) { return ++steps > 0; });
  ASSERT_TRUE(rules);
  EXPECT_EQ(steps, static_cast<long>(net.scenario->getElements().size()) + 3);
  EXPECT_EQ(rules->getName(), "Prioridades-rule-Padrão");
  const auto rule = std::dynamic_pointer_cast<SerieReleaseRule>(
      Scenario::getSettings<ReservoirRuleSettings>(rules->getElement(upper->getId()),
                                                   rules->getSettingsManager())
          ->getRule());
  ASSERT_TRUE(rule);

  ASSERT_TRUE(rules->run(nullptr)) << findings(*rules);
  expectReleasesOfTheRun(*rules, 1e-9);
  EXPECT_GT(released(*net.scenario, upper, Date(2001, 8, 1)), 0.0);
}

// A model of one neighbour answers the volumes of each period of the run with its release; where
// periods began with the very same volumes (both lakes at their goal), with the release of the
// first of them.
TEST_F(RulesFromPriority, OneNeighbourAnswersTheRunsOwnPeriods) {
  {
    const auto rules = derived(ConfigureRuleElementType::knn);
    ASSERT_TRUE(rules);
    const auto& rule = *ruleOf<MachineLearningRegressionColVolumesReleaseRule>(*rules, lower);
    const auto& dataset = rule.getDataset();
    ASSERT_EQ(dataset.size(), 12u);
    EXPECT_EQ(rule.getReservoirsIds(), (std::vector<unsigned int>{upper->getId(), lower->getId()}));
    EXPECT_EQ(rule.getReservoirs().size(), 2u);
    for (const auto& entry : dataset) {
      const auto first = std::find_if(dataset.begin(), dataset.end(), [&](const auto& other) {
        return other.attributes == entry.attributes;
      });
      const double answer = rule.getAlgorithm()->runNormal(entry.attributes);
      EXPECT_EQ(answer, first->value) << "entry " << entry.index;
    }
    EXPECT_TRUE(rules->run(nullptr)) << findings(*rules);
  }
}

TEST_F(RulesFromPriority, TheSearchForTheNumberOfEntriesKeepsTheOneThatErrsLeast) {
  using Optimizer = MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer;
  EXPECT_EQ(Optimizer::getMaxOptimizeNumberOfEntriesOfAverage(12), 9u);
  const auto rules = derived(ConfigureRuleElementType::knn, 3);
  ASSERT_TRUE(rules);
  const auto rule = ruleOf<MachineLearningRegressionColVolumesReleaseRule>(*rules, upper);
  const auto kFold = MachineLearningAlgorithmValidatorType::kFoldCrossValidation;
  const auto errors = Optimizer::makeError(*rule, kFold, 75.0, 20);
  ASSERT_EQ(errors.size(), 9u);                         // up to 80 % of the twelve periods
  EXPECT_EQ(rule->getNumberOfEntriesForAverage(), 3u);  // makeError leaves the rule as it was
  std::size_t best = 0;
  for (std::size_t i = 1; i < errors.size(); ++i) {
    if (errors[best].first - errors[i].first > 1e-6) best = i;
  }
  const auto found = Optimizer::make(*rules, kFold, 75.0, 20);
  EXPECT_EQ(found.at(upper->getId()), best + 1);
  EXPECT_EQ(rule->getNumberOfEntriesForAverage(), best + 1);
  EXPECT_EQ(Optimizer::make(*rules, kFold, 75.0, 1).at(lower->getId()), 1u);
}

TEST_F(RulesFromPriority, AForestReleasesWithinTheRangeOfTheRunAndTheSameForTheSameSeed) {
  std::vector<double> first;
  for (int attempt = 0; attempt < 2; ++attempt) {
    RegressionRandomForestAlgorithm::setSeed(11);
    const auto rules = derived(ConfigureRuleElementType::randomForest);
    ASSERT_TRUE(rules);
    ASSERT_TRUE(rules->run(nullptr)) << findings(*rules);
    std::vector<double> releases;
    PeriodWalker::forEach(net.interval(), [&](const Date& date) {
      releases.push_back(released(*rules, lower, date));
    });
    const auto& dataset =
        ruleOf<MachineLearningRegressionColVolumesReleaseRule>(*rules, lower)->getDataset();
    const auto [least, most] =
        std::minmax_element(dataset.begin(), dataset.end(),
                            [](const auto& a, const auto& b) { return a.value < b.value; });
    for (const double release : releases) {
      EXPECT_GE(release, least->value - 1e-9);
      EXPECT_LE(release, most->value + 1e-9);
    }
    if (attempt == 0)
      first = releases;
    else
      EXPECT_EQ(releases, first);
  }
  RegressionRandomForestAlgorithm::setSeed(std::nullopt);
}

TEST_F(RulesFromPriority, LearnedRulesComeBackByteIdenticalThroughFileAndDatabase) {
  RegressionRandomForestAlgorithm::setSeed(5);
  std::vector<std::shared_ptr<Scenario>> scenarios{net.scenario};
  for (auto type : {ConfigureRuleElementType::knn, ConfigureRuleElementType::regressionTree,
                    ConfigureRuleElementType::randomForest}) {
    scenarios.push_back(derived(type, 2));
    ASSERT_TRUE(scenarios.back());
    ASSERT_TRUE(scenarios.back()->run(nullptr)) << findings(*scenarios.back());
  }
  RegressionRandomForestAlgorithm::setSeed(std::nullopt);
  install(scenarios);
  ASSERT_TRUE(SaveProject::saveAs(folder.file("learned.sjson"), nullptr));
  const std::string text = JsonSaveBuilder::toJson(scenarios);
  SQLStorage::deleteInstance();
  ScenarioManager::getInstance().clear();
  const auto opened = LoadProject::load(folder.file("learned.sjson"), nullptr);
  ASSERT_EQ(opened.size(), scenarios.size());
  const std::string again = JsonSaveBuilder::toJson(opened);
  EXPECT_EQ(again, text);
  for (std::size_t i = 1; i < opened.size(); ++i) {
    SCOPED_TRACE(opened[i]->getName());
    ASSERT_TRUE(opened[i]->run(nullptr)) << findings(*opened[i]);
    PeriodWalker::forEach(net.interval(), [&](const Date& date) {
      EXPECT_EQ(released(*opened[i], lower, date), released(*scenarios[i], lower, date));
    });
  }
}

TEST_F(RulesFromPriority, TheChecksOfLearnedRulesGiveTheirTexts) {
  const auto knn = derived(ConfigureRuleElementType::knn, 13);
  ASSERT_TRUE(knn);
  EXPECT_FALSE(knn->run(nullptr));
  ASSERT_EQ(knn->getSceneryCheck()->getAllErrors().size(), 2u) << findings(*knn);
  EXPECT_EQ(knn->getSceneryCheck()->getAllErrors()[0].message,
            "Valor de K superior ao tamanho do dataset em:");

  const auto tree = derived(ConfigureRuleElementType::regressionTree);
  ASSERT_TRUE(tree);
  ruleOf<RegressionTreeColVolumesReleaseRule>(*tree, upper)->setNumberOfEntriesForAverage(13);
  tree->getElement(lower->getId())->setEnabled(false);
  EXPECT_FALSE(tree->run(nullptr));
  const std::string found = findings(*tree);
  EXPECT_NE(found.find("Valor de mínimo para quebra de nó é superior ao tamanho do dataset em:"),
            std::string::npos)
      << found;
  EXPECT_NE(found.find("Os reservatórios associados ao reservatório r não podem estar "
                       "desabilitados:"),
            std::string::npos)
      << found;
}

TEST_F(RulesFromPriority, AllocationLinesAreTheMeanSplitOfEachTotalOfTheRun) {
  const auto rules = derived(ConfigureRuleElementType::defaultSerie);
  ASSERT_TRUE(rules);
  const auto matrix = std::static_pointer_cast<RuleSettings>(
                          rules->getSettingsManager().getSettings(upper->getId()))
                          ->getAllocation();
  const auto& totals = matrix.at(upper->getId());
  ASSERT_FALSE(totals.empty());
  EXPECT_TRUE(std::is_sorted(totals.begin(), totals.end()));
  for (std::size_t line = 0; line < totals.size(); ++line) {
    double shares = 0.0;
    for (const auto& link : upper->getDownstreamLinks()) shares += matrix.at(link->getId())[line];
    EXPECT_NEAR(shares, totals[line], 1e-6) << "line " << line;
    EXPECT_GT(totals[line], 0.0);
  }
}

TEST_F(RulesFromPriority, ARulesSettingsGoBackIntoTheSettingsOfItsKind) {
  auto addon = std::make_shared<ConfigureRuleElementFromPriorityRandomForestAddon>();
  addon->setNumberOfTrees(7);
  addon->setDatasetPercentInTree(60.0);
  addon->setReplacement(false);
  addon->setTreeLimits({4, 3, 0.01});
  addon->setAverageCalculatorType(MachineLearningRegressionAverageCalculatorType::harmonic);
  addon->setNumberOfEntriesForAverage(2);
  net.scenario->setConfigureRuleElementFromPriorityAddon(addon);
  const auto rules = AutomatedScenarioBuilder::makeRuleScenarioFromPriority(*net.scenario, nullptr);
  ASSERT_TRUE(rules);
  const auto rule = ruleOf<RegressionRandomForestColVolumesReleaseRule>(*rules, upper);
  ASSERT_TRUE(rule);
  EXPECT_EQ(rule->getVecOfTreeInfo().size(), 7u);

  auto back = std::make_shared<ConfigureRuleElementFromPriorityRandomForestAddon>();
  DoConfigureRuleElementAddonFromRegressionAlgorithm::configure(*rule, *back);
  EXPECT_EQ(back->getNumberOfTrees(), 7u);
  EXPECT_EQ(back->getDatasetPercentInTree(), 60.0);
  EXPECT_FALSE(back->isReplacement());
  EXPECT_EQ(back->getTreeLimits().maxNumberOfLeaves, 4u);
  EXPECT_EQ(back->getTreeLimits().maxDepth, 3u);
  EXPECT_EQ(back->getTreeLimits().cp, 0.01);
  EXPECT_EQ(back->getAverageCalculatorType().getName(), "Média harmônica");
  EXPECT_EQ(back->getNumberOfEntriesForAverage(), 2u);
  auto wrong = ConfigureRuleElementFromPriorityAddonFactory::makeKNNAddon();
  EXPECT_THROW_TEXT(
      DoConfigureRuleElementAddonFromRegressionAlgorithm::configure(*rule, *wrong),
      std::invalid_argument,
      "DoConfigureRuleElementAddonFromRegressionAlgorithm::configure(): invalid type");
}

TEST_F(RulesFromPriority, UnknownKindsAreRefused) {
  EXPECT_THROW_TEXT(
      ConfigureRuleElementFromPriorityAddonFactory::make(static_cast<ConfigureRuleElementType>(9)),
      std::invalid_argument, "ConfigureRuleElementFromPriorityAddonFactory::make(): invalid type");
  EXPECT_THROW_TEXT(ConfigureRuleElementFromPriorityFactory::make(
                        static_cast<ConfigureRuleElementType>(9), upper->getId(), *net.scenario,
                        *derived(ConfigureRuleElementType::defaultSerie)),
                    std::invalid_argument,
                    "ConfigureRuleElementFromPriorityFactory::make(): invalid type");
}
