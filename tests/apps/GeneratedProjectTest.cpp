#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <set>

#include "GeneratedProject.h"
#include "KovaInProcess.h"
#include "OpenProject.h"
#include "common/PeriodWalker.h"
#include "core/ElementsFilter.h"
#include "core/PrioritySettings.h"
#include "core/ReservoirRuleSettings.h"
#include "managers/ProjectFunctions.h"
#include "project/database/DatabaseTestSupport.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"
#include "support/WaterBalance.h"

namespace {

GeneratedProjectOptions small(GeneratedMode mode, std::uint64_t seed = 7) {
  GeneratedProjectOptions options;
  options.reservoirs = 9;  // one of each kind of rule
  options.demands = 16;
  options.periods = 72;
  options.mode = mode;
  options.seed = seed;
  return options;
}

Scenario::Elements reservoirsOf(const Scenario& scenario) {
  return ElementsFilter::filterByType(scenario.getElements(), {ElementType::reservoir});
}

Scenario::Elements demandsOf(const Scenario& scenario) {
  return ElementsFilter::filterByType(
      scenario.getElements(), {ElementType::humanDemand, ElementType::animalDemand,
                               ElementType::industrialDemand, ElementType::irrigationDemand});
}

unsigned int priorityOf(const Scenario& scenario, const std::shared_ptr<Element>& element) {
  return Scenario::getSettings<PrioritySettings>(element, scenario.getSettingsManager())
      ->getPriority();
}

GeneratedProjectOptions chainOf(unsigned int reservoirs, unsigned int demands, bool own) {
  GeneratedProjectOptions options;
  options.reservoirs = reservoirs;
  options.demands = demands;
  options.periods = 24;
  options.mode = GeneratedMode::priority;
  options.layout = GeneratedLayout::chain;
  options.ownPriorities = own;
  return options;
}

// For every reservoir and date: initial + inflows + rain - evaporation - release - spill =
// final, within 1e-6 of the largest of those volumes. Gives the number of spills.
std::size_t expectConservation(const Scenario& scenario) {
  std::size_t checked = 0, spills = 0;
  PeriodWalker::forEach(scenario.getInterval(), [&](const Date& date) {
    for (const auto& reservoir : reservoirsOf(scenario)) {
      const auto value = [&](SerieType type) {
        return reservoir->getOutputSerie(type, 0)->getValue(date);
      };
      const WaterBalance balance = waterBalanceOf(*reservoir, date);
      ASSERT_NEAR(balance.final, value(SerieType::finalVolume), 1e-6 * balance.largest)
          << reservoir->getName() << " " << date.toString("%m/%Y");
      ++checked;
      if (value(SerieType::spilledVolume) > 0.0) ++spills;
    }
  });
  EXPECT_EQ(checked, scenario.getInterval().period() * reservoirsOf(scenario).size());
  return spills;
}

class GeneratedProjectTest : public ::testing::Test {
 protected:
  void SetUp() override { ProjectFunctions::closeProject(); }
  void TearDown() override { ProjectFunctions::closeProject(); }

  TemporaryFolder folder{"kova_generated_"};
};

class GeneratedModeTest : public GeneratedProjectTest,
                          public ::testing::WithParamInterface<GeneratedMode> {};

}  // namespace

TEST_P(GeneratedModeTest, PassesItsChecksRunsAndConservesWaterAtEveryReservoir) {
  const auto scenario = GeneratedProject::make(small(GetParam()));
  ASSERT_TRUE(scenario->run(nullptr));
  EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::success);
  EXPECT_GT(expectConservation(*scenario), 0u) << "full lakes are part of the test";
}

TEST_P(GeneratedModeTest, TheSavedProjectOpensAndRuns) {
  const std::string path = folder.file("gerado.sjson");
  const std::string mode = GetParam() == GeneratedMode::rule ? "rule" : "priority";
  const auto made = kova(
      {"generate", path, "--reservoirs", "4", "--demands", "6", "--periods", "24", "--mode", mode});
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.out, "generated " + path + ": 4 reservoirs, 6 demands, 24 months, " + mode +
                          " mode, seed 1\n");
  EXPECT_EQ(made.err.rfind("saving: 0%\n", 0), 0u) << made.err;  // progress, not a complaint
  OpenProject project(path);
  ASSERT_EQ(project.scenarios().size(), 1u);
  const auto& scenario = project.scenarios().front();
  EXPECT_EQ(reservoirsOf(*scenario).size(), 4u);
  ASSERT_TRUE(ScenarioManager::getInstance().executeScenery(0, nullptr, nullptr));
  expectConservation(*scenario);
}

INSTANTIATE_TEST_SUITE_P(BothModes, GeneratedModeTest,
                         ::testing::Values(GeneratedMode::rule, GeneratedMode::priority));

TEST_F(GeneratedProjectTest, HasEveryKindOfElementRuleAndSeveralPriorities) {
  const auto rule = GeneratedProject::make(small(GeneratedMode::rule));
  std::set<ElementType> kinds;
  for (const auto& element : rule->getElements()) kinds.insert(element->getType());
  EXPECT_EQ(kinds,
            (std::set<ElementType>{
                ElementType::reservoir, ElementType::humanDemand, ElementType::animalDemand,
                ElementType::industrialDemand, ElementType::irrigationDemand, ElementType::drain,
                ElementType::junction, ElementType::naturalLink, ElementType::artificialLink}));
  std::set<int> rules;
  for (const auto& reservoir : reservoirsOf(*rule)) {
    rules.insert(Scenario::getSettings<ReservoirRuleSettings>(reservoir, rule->getSettingsManager())
                     ->getRule()
                     ->getType()
                     .getId());
  }
  EXPECT_EQ(rules, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));

  const auto priority = GeneratedProject::make(small(GeneratedMode::priority));
  std::set<unsigned int> levels;
  for (const auto& element : priority->getElements()) {
    if (const auto settings = std::dynamic_pointer_cast<PrioritySettings>(
            priority->getSettingsManager().getSettings(element->getId()))) {
      levels.insert(settings->getPriority());
    }
  }
  EXPECT_GE(levels.size(), 5u);
  EXPECT_EQ(*levels.rbegin(), 99u) << "the drain keeps the priority it is made with";
}

TEST_F(GeneratedProjectTest, SameSeedGivesTheSameFilesAndAnotherSeedOtherInflows) {
  for (const std::string mode : {"rule", "priority"}) {
    SCOPED_TRACE(mode);
    const auto generate = [&](const std::string& name, const std::string& seed) {
      const std::string path = folder.file(name);
      const auto made = kova({"generate", path, "--reservoirs", "3", "--demands", "5", "--periods",
                              "36", "--mode", mode, "--seed", seed, "--quiet"});
      EXPECT_EQ(made.status, 0) << made.err;
      return path;
    };
    const auto first = generate(mode + "1.sjson", "42");
    const auto second = generate(mode + "2.sjson", "42");
    EXPECT_EQ(readFile(first), readFile(second));
    EXPECT_EQ(databasetest::contentOf(first + ".sqlite", "timeStamp"),
              databasetest::contentOf(second + ".sqlite", "timeStamp"));
    const auto other = generate(mode + "3.sjson", "43");
    EXPECT_NE(databasetest::contentOf(first + ".sqlite", "timeStamp"),
              databasetest::contentOf(other + ".sqlite", "timeStamp"));
  }
  const auto inflows = [](std::uint64_t seed) {
    const auto scenario = GeneratedProject::make(small(GeneratedMode::rule, seed));
    return reservoirsOf(*scenario)
        .front()
        ->getInputSerie(SerieType::naturalIncrementalFlow)
        ->getMapOfJulianToValues();
  };
  EXPECT_EQ(inflows(42), inflows(42));
  EXPECT_NE(inflows(42), inflows(43));
}

TEST_F(GeneratedProjectTest, BadOptionsAreRefusedWithTheirTexts) {
  const std::string path = folder.file("p.sjson");
  const std::string tail = "; try 'kova generate --help'\n";
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"--demands", "1", "--periods", "1"}, "option --reservoirs is required"},
      {{"--reservoirs", "1", "--periods", "1"}, "option --demands is required"},
      {{"--reservoirs", "1", "--demands", "1"}, "option --periods is required"},
      {{"--reservoirs", "0", "--demands", "1", "--periods", "1"},
       "option --reservoirs: \"0\" is not a whole number of at least 1"},
      {{"--reservoirs", "1", "--demands", "-1", "--periods", "1"},
       "option --demands: \"-1\" is not a whole number of at least 0"},
      {{"--reservoirs", "1", "--demands", "x", "--periods", "1"},
       "option --demands: \"x\" is not a whole number of at least 0"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "0"},
       "option --periods: \"0\" is not a whole number of at least 1"},
      {{"--reservoirs", "1001", "--demands", "1", "--periods", "1"},
       "option --reservoirs: 1001 is more than 1000"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "12001"},
       "option --periods: 12001 is more than 12000"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "1", "--mode", "rules"},
       "option --mode: \"rules\" is neither rule nor priority"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "1", "--seed", "1.5"},
       "option --seed: \"1.5\" is not a whole number of at least 0"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "1", "--layout", "ring"},
       "option --layout: \"ring\" is neither tree nor chain"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "1", "--layout", "chain", "--mode",
        "rule"},
       "option --mode: a chain is operated by priorities"},
      {{"--reservoirs", "1", "--demands", "1", "--periods", "1", "--own-priorities"},
       "option --own-priorities: only with --layout chain"},
      {{"--reservoirs", "50", "--demands", "49", "--periods", "1", "--layout", "chain",
        "--own-priorities"},
       "option --own-priorities: at most 98 reservoirs and demands"},
  };
  for (const auto& [options, text] : cases) {
    SCOPED_TRACE(text);
    std::vector<std::string> args = {"generate", path};
    args.insert(args.end(), options.begin(), options.end());
    const auto refused = kova(args);
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "kova generate: " + text + tail);
    EXPECT_FALSE(std::filesystem::exists(path));
  }
  auto none = small(GeneratedMode::rule);
  none.reservoirs = 0;
  EXPECT_THROW_TEXT((void)GeneratedProject::make(none), std::invalid_argument,
                    "GeneratedProject::make(): at least one reservoir");
  auto instant = small(GeneratedMode::priority);
  instant.periods = 0;
  EXPECT_THROW_TEXT((void)GeneratedProject::make(instant), std::invalid_argument,
                    "GeneratedProject::make(): at least one period");
  auto ruledChain = small(GeneratedMode::rule);
  ruledChain.layout = GeneratedLayout::chain;
  EXPECT_THROW_TEXT((void)GeneratedProject::make(ruledChain), std::invalid_argument,
                    "GeneratedProject::make(): a chain is operated by priorities");
  auto ownTree = small(GeneratedMode::priority);
  ownTree.ownPriorities = true;
  EXPECT_THROW_TEXT((void)GeneratedProject::make(ownTree), std::invalid_argument,
                    "GeneratedProject::make(): priorities of their own only in a chain");
  auto crowded = chainOf(50, 49, true);
  EXPECT_THROW_TEXT(
      (void)GeneratedProject::make(crowded), std::invalid_argument,
      "GeneratedProject::make(): at most 98 reservoirs and demands with priorities of their own");
}

// Reservoir i: m = 100 + 20 (i mod 5) hm³ a month, capacity 6 m, minimum a tenth of that, half
// full at the start. Demands 0 and 3 share reservoir 0, 1 and 4 reservoir 1, 2 is alone at
// reservoir 2; demand j has priority 1 + (j mod 3), reservoirs 4. The drain keeps its 99.
TEST_F(GeneratedProjectTest, AChainHasTheBenchmarkShapeVolumesAndPriorities) {
  const auto scenario = GeneratedProject::make(chainOf(3, 5, false));
  const auto reservoirs = reservoirsOf(*scenario);
  ASSERT_EQ(reservoirs.size(), 3u);
  const std::vector<double> capacities = {600.0, 720.0, 840.0};  // 6 x 100, 6 x 120, 6 x 140
  for (std::size_t i = 0; i < 3; ++i) {
    const auto reservoir = std::static_pointer_cast<Reservoir>(reservoirs[i]);
    const ReservoirInfo& info = reservoir->getReservoirInfo();
    EXPECT_DOUBLE_EQ(info.maxVol, capacities[i]);
    EXPECT_DOUBLE_EQ(info.minVol, 0.1 * capacities[i]);
    EXPECT_DOUBLE_EQ(info.initVol, 0.5 * capacities[i]);
    ASSERT_EQ(reservoir->getDownstreamLinks().size(), i == 0 ? 3u : (i == 1 ? 3u : 2u));
    EXPECT_EQ(reservoir->getDownstreamLinks().front()->getDownstream()->getType(),
              i < 2 ? ElementType::reservoir : ElementType::drain);
    EXPECT_EQ(priorityOf(*scenario, reservoir), 4u);
  }
  const auto demands = demandsOf(*scenario);
  ASSERT_EQ(demands.size(), 5u);
  const std::vector<unsigned int> priorities = {1, 2, 3, 1, 2};
  for (std::size_t j = 0; j < demands.size(); ++j) {
    EXPECT_EQ(priorityOf(*scenario, demands[j]), priorities[j]) << j;
  }
  // Demand 0: d = 0.9 x 100 / 2 = 45 hm³ a month, or 45 / 2.628 m³/s; its canal takes 1.2 d.
  const auto canal =
      std::static_pointer_cast<Node>(demands[0])->getUpstreamLinks().front();
  EXPECT_EQ(canal->getUpstream(), reservoirs[0]);
  EXPECT_NEAR(canal->getInputSerie(SerieType::linkLimit)->getValue(Date(1901, 1, 1)),
              1.2 * 45.0 / 2.628, 1e-12);
  // January is the middle of the seasons of a demand: sin 0 = 0.
  EXPECT_NEAR(demands[0]->getInputSerie(SerieType::demand)->getValue(Date(1901, 1, 1)),
              45.0 / 2.628, 1e-12);
  // April is the top: 1.3 d.
  EXPECT_NEAR(demands[0]->getInputSerie(SerieType::demand)->getValue(Date(1901, 4, 1)),
              1.3 * 45.0 / 2.628, 1e-12);
  ASSERT_TRUE(scenario->run(nullptr));
  EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::success);
  expectConservation(*scenario);
}

// Head reach first: demands 0 and 3, then reservoir 0; demands 1 and 4, reservoir 1; demand 2,
// reservoir 2.
TEST_F(GeneratedProjectTest, OwnPrioritiesGoDownTheChainDemandsBeforeTheirReservoir) {
  const auto scenario = GeneratedProject::make(chainOf(3, 5, true));
  const auto reservoirs = reservoirsOf(*scenario);
  const auto demands = demandsOf(*scenario);
  const std::vector<unsigned int> demandPriorities = {1, 4, 7, 2, 5};
  const std::vector<unsigned int> reservoirPriorities = {3, 6, 8};
  for (std::size_t j = 0; j < demands.size(); ++j) {
    EXPECT_EQ(priorityOf(*scenario, demands[j]), demandPriorities[j]) << j;
  }
  for (std::size_t i = 0; i < reservoirs.size(); ++i) {
    EXPECT_EQ(priorityOf(*scenario, reservoirs[i]), reservoirPriorities[i]) << i;
  }
  ASSERT_TRUE(scenario->run(nullptr));
  expectConservation(*scenario);
}

TEST_F(GeneratedProjectTest, TheChainIsGeneratedFromTheCommandLine) {
  const std::string path = folder.file("chain.sjson");
  const auto made = kova({"generate", path, "--reservoirs", "2", "--demands", "3", "--periods",
                          "12", "--layout", "chain", "--own-priorities"});
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.out, "generated " + path +
                          ": 2 reservoirs, 3 demands, 12 months, priority mode, chain, "
                          "priorities of their own, seed 1\n");
  OpenProject project(path);
  ASSERT_EQ(project.scenarios().size(), 1u);
  EXPECT_EQ(reservoirsOf(*project.scenarios().front()).size(), 2u);
}

TEST_F(GeneratedProjectTest, AnExistingProjectIsNeverOverwritten) {
  const std::string path = folder.file("p.sjson");
  std::ofstream(path + ".sqlite") << "mine";
  const auto refused =
      kova({"generate", path, "--reservoirs", "1", "--demands", "0", "--periods", "1", "--quiet"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.err,
            "kova generate: " + path + ".sqlite: already exists (choose another name)\n");
  EXPECT_EQ(readFile(path + ".sqlite"), "mine");
  EXPECT_FALSE(std::filesystem::exists(path));
}
