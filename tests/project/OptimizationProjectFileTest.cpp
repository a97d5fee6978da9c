#include <gtest/gtest.h>

#include <string>

#include "checks/SceneryCheck.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "optimization/OptimisableRules.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"

using OptimizationProjectFileTest = projectfile::ProjectFileTest;
using optimisationtest::addEveryOptimisableRule;
using optimisationtest::settingsOf;
using optimisationtest::TwoReservoirs;

namespace {

using optimisationtest::kMark;

std::shared_ptr<RuleOptimizationScenario> twoReservoirs(OptimizationAlgorithmType type) {
  auto scenario = optimisationtest::optimisation(type, 4, 3, 2);
  scenario->getExecutionOptimization().setThreads(1);
  scenario->setDatabaseId(7);
  return scenario;
}

std::shared_ptr<RuleOptimizationScenario> loadedOptimisation(const std::string& path) {
  const auto loaded = JsonProjectLoader::load(path);
  EXPECT_EQ(loaded.size(), 1u);
  return std::dynamic_pointer_cast<RuleOptimizationScenario>(loaded.at(0));
}

// The message with which a file of text fails to load.
std::string loadFailure(const projectfile::TemporaryFolder& folder, const std::string& text) {
  const std::string path = folder.file("bad.sjson");
  projectfile::writeFile(path, text);
  try {
    JsonProjectLoader::load(path);
  } catch (const std::exception& error) {
    return error.what();
  }
  return "loaded";
}

}  // namespace

TEST_F(OptimizationProjectFileTest, EveryOptimisableRuleSwarmAndFrontComeBackByteIdentical) {
  projectfile::TemporaryFolder folder;
  auto omopso = twoReservoirs(OptimizationAlgorithmType::omopso);
  addEveryOptimisableRule(*omopso);
  // Decision variables far below 0.1 must come back as the very same doubles.
  omopso->setOptimizationResults({{0.1, 1.0 / 3.0}, {1e-7, 2.0 / 3.0 * 1e-3}},
                                 {{1234.5678901234567, 6.7e-3}, {1.0 / 7.0, 1e-12}});
  auto pso = std::make_shared<RuleOptimizationScenario>(2, optimisationtest::kTwoYears, "PSO");
  TwoReservoirs system(pso);
  pso->getExecutionOptimization().configureAlgorithm(OptimizationAlgorithmType::pso);

  const std::string first = projectfile::saved({omopso, pso}, folder.file("first.sjson"));
  auto& manager = ScenarioManager::getInstance();
  const auto loaded = JsonProjectLoader::load(folder.file("first.sjson"));
  ASSERT_EQ(loaded.size(), 2u);
  EXPECT_EQ(projectfile::saved(loaded, folder.file("second.sjson")), first);

  const auto& again = dynamic_cast<RuleOptimizationScenario&>(*loaded[0]);
  EXPECT_EQ(again.getMatrixOfSolutions(), omopso->getMatrixOfSolutions());
  EXPECT_EQ(again.getMatrixOfObjectiveFunctionsValues(),
            omopso->getMatrixOfObjectiveFunctionsValues());
  const auto& functions = again.getExecutionOptimization().getVectorOfObjectiveFunctions();
  ASSERT_EQ(functions.size(), 2u);
  EXPECT_EQ(functions[0]->getType().getType(), ObjectiveFunctionType::shortageVolume);
  // The functions read the loaded scenario's own demands.
  const auto& demands = omopso->getExecutionOptimization().getVectorOfObjectiveFunctions()[0];
  ASSERT_EQ(functions[0]->getElements().size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(functions[0]->getElements()[i], again.getElement(demands->getElements()[i]->getId()));
  }
  const auto& algorithm = *again.getExecutionOptimization().getOptimizationAlgorithm();
  EXPECT_EQ(algorithm.getType(), OptimizationAlgorithmType::omopso);
  const auto& parameters = dynamic_cast<const MPSOParameters&>(*algorithm.getAlgorithmParameters());
  EXPECT_EQ(parameters.swarmSize, 4u);
  EXPECT_EQ(parameters.archiveSize, 3u);
  EXPECT_EQ(parameters.maxIterations, 2u);
  EXPECT_EQ(dynamic_cast<RuleOptimizationScenario&>(*loaded[1])
                .getExecutionOptimization()
                .getOptimizationAlgorithm()
                ->getType(),
            OptimizationAlgorithmType::pso);

  // The flags of the file put the marks back where they were, and nowhere else.
  const auto reservoirs =
      ElementsFilter::filterByType(again.getElements(), ElementSets::reservoir());
  const auto ruleOf = [&](std::size_t index) {
    return settingsOf(again, reservoirs[index])->getRule();
  };
  const auto& oneStatic = dynamic_cast<const OptVolDepOneStaticReleaseRule&>(*ruleOf(5));
  EXPECT_EQ(oneStatic.getToOptVectorOfVolDepOneReleaseStruct(),
            (OptVolDepOneReleaseRule::Table{{kMark, {0.5}}, {100, {kMark}}}));
  EXPECT_EQ(oneStatic.getReservoirDependency(), reservoirs[0]);
  const auto& twoPeriodic = dynamic_cast<const OptVolDepTwoPeriodicReleaseRule&>(*ruleOf(8));
  EXPECT_EQ(twoPeriodic.getOptVolDepTwoReleaseStruct().releases[11][0][1], kMark);
  EXPECT_EQ(twoPeriodic.getOptVolDepTwoReleaseStruct().releases[10][0][1], 1.5);
  EXPECT_EQ(twoPeriodic.getOptVolDepTwoReleaseStruct().volumePercentageD2,
            (std::vector<double>{kMark, 100}));
  const auto& states = dynamic_cast<const OptHydrologicalStateReleaseRule&>(*ruleOf(9));
  EXPECT_EQ(states.getOptRelease(), (std::vector<double>{1.0, kMark, kMark}));
  EXPECT_EQ(states.getNumOfDecisionVars(), 3u);
  manager.clear();
}

TEST_F(OptimizationProjectFileTest, TheFlagsAndKeysOfTheRulesAreWrittenAsTheFormatHasThem) {
  projectfile::TemporaryFolder folder;
  auto scenario = twoReservoirs(OptimizationAlgorithmType::smpso);
  addEveryOptimisableRule(*scenario);
  const std::string text = projectfile::saved({scenario}, folder.file("p.sjson"));
  for (const std::string& piece : {
           std::string(R"("ExecutionMethodType":"Otimização")"),
           std::string(R"("objectiveFunctions":[{"isMinimization":1,"name":")"),
           std::string(
               R"("personalizedObjectiveFunctions":[],"OptAlgorithm":{"type":"SMPSO",)"
               R"("MPSOParameters":{"particlesSize":4,"archiveSize":3,"maxIterations":2}})"),
           std::string(R"("toOpt":1,"lowerRelease":0.00000000000000000,)"),
           std::string(R"("toOpt":[1,0,1,0,0,0,0,0,0,0,1,0])"),
           std::string(R"("OptVolDepOneVector":[{"OptPercentage":1,"OptRelease":[0]},)"
                       R"({"OptPercentage":0,"OptRelease":[1]}],"maxRelease":12.0)"),
           std::string(R"("OptVolumePercentageD1":[1,0],"OptVolumePercentageD2":[0],)"
                       R"("OptRelease":[[[1],[0]]],"maxRelease":6.0)"),
           std::string(R"("OptProportionalZones":[1,0],"Release":[1.0)"),
           std::string(R"("OptRelease":[0,1,1],"RequiredGuarantees":[90.0)"),
           std::string(R"("Otimização":[{"julianDay":)"),
           std::string(R"("solutions":[],"objectiveFunctionsValues":[])"),
       }) {
    EXPECT_NE(text.find(piece), std::string::npos) << piece;
  }
  // A working value under a mark is kept, not the mark.
  EXPECT_EQ(text.find("-998"), std::string::npos);
}

TEST_F(OptimizationProjectFileTest, ALoadedOptimisationFindsTheFrontOfTheOriginal) {
  projectfile::TemporaryFolder folder;
  auto original = twoReservoirs(OptimizationAlgorithmType::smpso);
  projectfile::saved({original}, folder.file("p.sjson"));
  auto loaded = loadedOptimisation(folder.file("p.sjson"));
  ASSERT_TRUE(loaded);
  projectfile::handOverSeries(*original, *loaded);
  loaded->getExecutionOptimization().setThreads(1);

  PseudoRandom::setSeed(5);
  ASSERT_TRUE(original->run(nullptr));
  PseudoRandom::setSeed(5);
  ASSERT_TRUE(loaded->run(nullptr));
  ASSERT_FALSE(original->getMatrixOfSolutions().empty());
  EXPECT_EQ(loaded->getMatrixOfSolutions(), original->getMatrixOfSolutions());
  EXPECT_EQ(loaded->getMatrixOfObjectiveFunctionsValues(),
            original->getMatrixOfObjectiveFunctionsValues());

  // The front found goes through the file exactly.
  projectfile::saved({loaded}, folder.file("q.sjson"));
  const auto reloaded = loadedOptimisation(folder.file("q.sjson"));
  EXPECT_EQ(reloaded->getMatrixOfSolutions(), original->getMatrixOfSolutions());
  EXPECT_EQ(reloaded->getMatrixOfObjectiveFunctionsValues(),
            original->getMatrixOfObjectiveFunctionsValues());
}

TEST_F(OptimizationProjectFileTest, OneObjectiveFunctionLoadsAndItsCheckReportsIt) {
  projectfile::TemporaryFolder folder;
  auto scenario = twoReservoirs(OptimizationAlgorithmType::pso);
  scenario->getExecutionOptimization().deleteObjectiveFunction(
      ObjectiveFunctionType::evaporationLoss);
  projectfile::saved({scenario}, folder.file("p.sjson"));
  auto loaded = loadedOptimisation(folder.file("p.sjson"));
  ASSERT_TRUE(loaded);
  projectfile::handOverSeries(*scenario, *loaded);
  EXPECT_FALSE(loaded->run(nullptr));
  const auto findings = loaded->getSceneryCheck()->getAllErrors();
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].message, "Quantidade de funções objetivo inferior a 2:");
}

TEST_F(OptimizationProjectFileTest, AWrongOptimisationKeyIsOneLineNamingItsPlace) {
  projectfile::TemporaryFolder folder;
  auto scenario = twoReservoirs(OptimizationAlgorithmType::smpso);
  scenario->setOptimizationResults({{0.5, 0.5}}, {{1.0, 2.0}});
  addEveryOptimisableRule(*scenario);
  const std::string text = projectfile::saved({scenario}, folder.file("p.sjson"));
  using projectfile::replaced;
  const struct {
    std::string from, to, expected;
  } cases[] = {
      {R"("type":"SMPSO")", R"("type":"NSGA")",
       "getOptimizationAlgorithmTypeByString(): Invalid optimization algorithm type"},
      {R"("particlesSize":4)", R"("particlesSize":0)", "OptAlgorithm"},
      {R"("personalizedObjectiveFunctions":[])", R"("personalizedObjectiveFunctions":[{}])",
       "isMinimization"},
      {R"("OptRelease":[0,1,1])", R"("OptRelease":[0,1])", "3 flags (0 or 1), one per value"},
      {R"("objectiveFunctionsValues":[[)", R"("objectiveFunctionsValues":[[0],[)",
       "1 rows of objective values, one per solution"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.to);
    const std::string message = loadFailure(folder, replaced(text, c.from, c.to));
    EXPECT_NE(message.find(c.expected), std::string::npos) << message;
    EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    EXPECT_EQ(message.rfind("/scenarios/0", 0), 0u) << message;
  }
  const std::string unknownElement =
      loadFailure(folder, replaced(text, R"("elementsIds":[)", R"("elementsIds":[4000,)"));
  EXPECT_NE(unknownElement.find("Scenario::getElement(): invalid elementId"), std::string::npos)
      << unknownElement;
}
