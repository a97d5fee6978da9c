#include <gtest/gtest.h>

#include <string>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "core/ElementFactory.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "optimization/TwoReservoirs.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoPeriodicReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"

using OptimizationProjectFileTest = projectfile::ProjectFileTest;
using optimisationtest::TwoReservoirs;

namespace {

constexpr double kMark = OptReleaseRule::kDecisionMark;

std::shared_ptr<RuleOptimizationScenario> twoReservoirs(OptimizationAlgorithmType type) {
  auto scenario = optimisationtest::optimisation(type, 4, 3, 2);
  scenario->getExecutionOptimization().setThreads(1);
  scenario->setDatabaseId(7);
  return scenario;
}

std::shared_ptr<ReservoirRuleSettings> settingsOf(const Scenario& scenario,
                                                  const std::shared_ptr<Element>& reservoir) {
  return Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager());
}

std::shared_ptr<Reservoir> addReservoir(Scenario& scenario) {
  auto reservoir =
      std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  scenario.addElement(reservoir, true);
  return reservoir;
}

// The optimisable rules that the two-reservoir system lacks, each on a reservoir of its own, with
// some cells marked and others fixed; the dependencies are the system's two reservoirs.
void addEveryOptimisableRule(RuleOptimizationScenario& scenario) {
  const auto system =
      ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir());
  const auto& a = system[0];
  const auto& b = system[1];
  std::vector<std::shared_ptr<ReleaseRule>> rules;

  rules.push_back(std::make_shared<OptNoneReleaseRule>());

  auto periodic = std::make_shared<OptPeriodicReleaseRule>();
  periodic->setRelease({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12.5});
  periodic->setToOpt(
      {true, false, true, false, false, false, false, false, false, false, true, false});
  periodic->setLowerAndUpperRelease(0.5, 30.0);
  rules.push_back(periodic);

  auto serie = std::make_shared<OptSerieReleaseRule>();
  auto releases = serie->getReleaseSerie()->copy();
  auto flags = serie->getToOptSerie()->copy();
  releases->setInterval(optimisationtest::kTwoYears);
  flags->setInterval(optimisationtest::kTwoYears);
  PeriodWalker::forEach(optimisationtest::kTwoYears, [&](const Date& date) {
    releases->setValue(date, 0.25 * date.getMonth());
    flags->setValue(date, date.getMonth() % 4 == 0 ? 1.0 : 0.0);
  });
  serie->setReleaseSerie(releases);
  serie->setToOptSerie(flags);
  serie->setMaxRelease(40.0);
  rules.push_back(serie);

  auto oneStatic = std::make_shared<OptVolDepOneStaticReleaseRule>();
  oneStatic->setVectorOfVolDepOneReleaseStruct({{40, {0.5}}, {100, {1.0}}});
  oneStatic->setToOptVectorOfVolDepOneReleaseStruct({{kMark, {0.5}}, {100, {kMark}}});
  oneStatic->setMaxRelease(12.0);
  oneStatic->setReservoirDependency(a);
  rules.push_back(oneStatic);

  auto onePeriodic = std::make_shared<OptVolDepOnePeriodicReleaseRule>();
  const std::vector<double> twelve(12, 2.0);
  std::vector<double> marked = twelve;
  marked[5] = kMark;
  onePeriodic->setVectorOfVolDepOneReleaseStruct({{100, twelve}});
  onePeriodic->setToOptVectorOfVolDepOneReleaseStruct({{100, marked}});
  onePeriodic->setMaxRelease(8.0);
  rules.push_back(onePeriodic);

  auto twoStatic = std::make_shared<OptVolDepTwoStaticReleaseRule>();
  twoStatic->setVolDepTwoReleaseStruct({{50, 100}, {100}, {{{2.0}, {3.0}}}});
  twoStatic->setOptVolDepTwoReleaseStruct({{kMark, 100}, {100}, {{{kMark}, {3.0}}}});
  twoStatic->setMaxRelease(6.0);
  twoStatic->setReservoirDependency(a, b);
  rules.push_back(twoStatic);

  auto twoPeriodic = std::make_shared<OptVolDepTwoPeriodicReleaseRule>();
  const std::vector<std::vector<std::vector<double>>> slots(12, {{1.0, 1.5}});
  auto markedSlots = slots;
  markedSlots[11][0][1] = kMark;
  twoPeriodic->setVolDepTwoReleaseStruct({{100}, {30, 100}, slots});
  twoPeriodic->setOptVolDepTwoReleaseStruct({{100}, {kMark, 100}, markedSlots});
  twoPeriodic->setMaxRelease(4.0);
  twoPeriodic->setReservoirDependency(b, a);
  rules.push_back(twoPeriodic);

  auto states = std::make_shared<OptHydrologicalStateReleaseRule>();
  states->setReservoirsIdsOfSystem({a->getId(), b->getId()});
  states->setStates(3, {0.3, 0.6}, {1.0, 2.0, 3.0});
  states->setOptStates({kMark, 0.6}, {1.0, kMark, kMark}, {90.0, 80.0, 70.0});
  states->setMaxRelease(10.0);
  rules.push_back(states);

  for (const auto& rule : rules) settingsOf(scenario, addReservoir(scenario))->setRule(rule);
}

std::string saved(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                  const std::string& path) {
  auto& manager = ScenarioManager::getInstance();
  manager.clear();
  for (unsigned int index = 0; index < scenarios.size(); ++index) {
    manager.addScenery(index, scenarios[index]);
  }
  EXPECT_TRUE(JsonSaveBuilder::save(path));
  manager.clear();
  return projectfile::readFile(path);
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

// The series stay in the database, not in the file: the loaded system gets them from the original.
void handOverSeries(const Scenario& from, const Scenario& to) {
  for (const auto& element : from.getElements()) {
    const auto& copy = to.getElement(element->getId());
    copy->getInputSeries()->copyFrom(element->getInputSeries());
    if (auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      std::static_pointer_cast<Reservoir>(copy)->getReservoirInfo().cav =
          reservoir->getReservoirInfo().cav;
    }
  }
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

  const std::string first = saved({omopso, pso}, folder.file("first.sjson"));
  auto& manager = ScenarioManager::getInstance();
  const auto loaded = JsonProjectLoader::load(folder.file("first.sjson"));
  ASSERT_EQ(loaded.size(), 2u);
  EXPECT_EQ(saved(loaded, folder.file("second.sjson")), first);

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
  const std::string text = saved({scenario}, folder.file("p.sjson"));
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
  saved({original}, folder.file("p.sjson"));
  auto loaded = loadedOptimisation(folder.file("p.sjson"));
  ASSERT_TRUE(loaded);
  handOverSeries(*original, *loaded);
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
  saved({loaded}, folder.file("q.sjson"));
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
  saved({scenario}, folder.file("p.sjson"));
  auto loaded = loadedOptimisation(folder.file("p.sjson"));
  ASSERT_TRUE(loaded);
  handOverSeries(*scenario, *loaded);
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
  const std::string text = saved({scenario}, folder.file("p.sjson"));
  using projectfile::replaced;
  const struct {
    std::string from, to, expected;
  } cases[] = {
      {R"("name":"Déficit no atendimento à demanda")", R"("name":"Volume perdido")",
       "getObjectiveFunctionByString(): Invalid objective function"},
      {R"("type":"SMPSO")", R"("type":"NSGA")",
       "getOptimizationAlgorithmTypeByString(): Invalid optimization algorithm type"},
      {R"("particlesSize":4)", R"("particlesSize":0)", "OptAlgorithm"},
      {R"(,"OptAlgorithm":{)", R"(,"Algoritmo":{)", "OptAlgorithm"},
      {R"("personalizedObjectiveFunctions":[])", R"("personalizedObjectiveFunctions":[{}])",
       "functions by expression are not read yet"},
      {R"("toOpt":[1,0,1,0,0,0,0,0,0,0,1,0])", R"("toOpt":[1,0,1])",
       "OptPeriodicReleaseRule::setToOpt(): invalid size of vector toOpt"},
      {R"("OptRelease":[0,1,1])", R"("OptRelease":[0,1])", "3 flags (0 or 1), one per value"},
      {R"("OptPercentage":1,)", R"("OptPercentage":"sim",)", "OptPercentage"},
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
