#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "optimization/ObjectiveFunctionFactory.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/TwoReservoirs.h"
#include "optimization/kernel/PseudoRandom.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

using namespace optimisationtest;

namespace {

using Matrix = RuleOptimizationScenario::Matrix;

// The objectives of one candidate, simulated in a plain rule scenario of the same system.
std::vector<double> simulate(const std::vector<double>& candidate) {
  TwoReservoirs system(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                     kTwoYears, "Simulação"));
  const auto& scenario = *system.net.scenario;
  OptimizationUtils::setDecisionVars(candidate, system.reservoirs, scenario.getSettingsManager());
  EXPECT_TRUE(system.net.scenario->run(nullptr));
  return system.objectives();
}

// The smallest value of each objective over a grid of candidates in [0, 1]².
std::vector<double> bestOnGrid(int steps) {
  std::vector<double> best(2, std::numeric_limits<double>::infinity());
  for (int a = 0; a <= steps; ++a) {
    for (int b = 0; b <= steps; ++b) {
      const auto values = simulate({double(a) / steps, double(b) / steps});
      for (int k = 0; k < 2; ++k) best[k] = std::min(best[k], values[k]);
    }
  }
  return best;
}

std::vector<double> bestOfFront(const Matrix& objectives) {
  std::vector<double> best(2, std::numeric_limits<double>::infinity());
  for (const auto& row : objectives) {
    for (int k = 0; k < 2; ++k) best[k] = std::min(best[k], row[k]);
  }
  return best;
}

}  // namespace

TEST(RuleOptimization, SwarmsFindTheBestReleasesOfABruteForceGrid) {
  const auto grid = bestOnGrid(40);  // releases every 0.5 m³/s
  ASSERT_GT(grid[0], 1.0);          // the dry season cannot be fully served
  for (auto type : {OptimizationAlgorithmType::smpso, OptimizationAlgorithmType::omopso}) {
    SCOPED_TRACE(OptimizationAlgorithmTypeNames::nameOf(type));
    PseudoRandom::setSeed(7);
    auto scenario = optimisation(type, 20, 20, 60);
    ASSERT_TRUE(scenario->run(nullptr));
    const auto found = bestOfFront(scenario->getMatrixOfObjectiveFunctionsValues());
    // The swarm may land between grid points, so it is at most a grid step's worth away.
    EXPECT_NEAR(found[0], grid[0], 0.02 * grid[0]);
    EXPECT_NEAR(found[1], grid[1], 0.02 * grid[1]);
    EXPECT_GT(scenario->getMatrixOfSolutions().size(), 5u);  // a front, not one point
  }
}

TEST(RuleOptimization, PsoMinimisesTheFirstObjective) {
  const auto grid = bestOnGrid(40);
  PseudoRandom::setSeed(11);
  auto scenario = optimisation(OptimizationAlgorithmType::pso, 20, 1, 40);
  ASSERT_TRUE(scenario->run(nullptr));
  ASSERT_EQ(scenario->getMatrixOfObjectiveFunctionsValues().size(), 1u);
  EXPECT_NEAR(scenario->getMatrixOfObjectiveFunctionsValues()[0][0], grid[0], 0.02 * grid[0]);
}

TEST(RuleOptimization, EachRowOfTheFrontIsReproducedByItsOwnSimulation) {
  PseudoRandom::setSeed(3);
  auto scenario = optimisation(OptimizationAlgorithmType::smpso, 10, 10, 5);
  ASSERT_TRUE(scenario->run(nullptr));
  const auto& solutions = scenario->getMatrixOfSolutions();
  const auto& objectives = scenario->getMatrixOfObjectiveFunctionsValues();
  ASSERT_EQ(solutions.size(), objectives.size());
  ASSERT_FALSE(solutions.empty());
  for (std::size_t row = 0; row < solutions.size(); ++row) {
    ASSERT_EQ(solutions[row].size(), 2u);
    EXPECT_EQ(simulate(solutions[row]), objectives[row]) << "row " << row;
  }
}

TEST(RuleOptimization, ARunCostsOneSimulationPerParticleAndIteration) {
  auto scenario = optimisation(OptimizationAlgorithmType::smpso, 10, 10, 5);
  long calls = 0;
  long lastPercentage = 0;
  ASSERT_TRUE(scenario->run([&](long percentage, long) {
    ++calls;
    lastPercentage = percentage;
    return true;
  }));
  EXPECT_EQ(calls, 60);  // 10 * (1 + 5): the first swarm is evaluated too
  EXPECT_EQ(lastPercentage, 100);
}

TEST(RuleOptimization, TheSameSeedGivesTheSameFront) {
  Matrix fronts[2];
  for (auto& front : fronts) {
    PseudoRandom::setSeed(1234);
    auto scenario = optimisation(OptimizationAlgorithmType::omopso, 8, 8, 4);
    ASSERT_TRUE(scenario->run(nullptr));
    front = scenario->getMatrixOfSolutions();
  }
  EXPECT_EQ(fronts[0], fronts[1]);
}

TEST(RuleOptimization, ACancelledRunKeepsTheEarlierFrontAndCanRunAgain) {
  PseudoRandom::setSeed(5);
  auto scenario = optimisation(OptimizationAlgorithmType::smpso, 6, 6, 3);
  ASSERT_TRUE(scenario->run(nullptr));
  const Matrix solutions = scenario->getMatrixOfSolutions();
  const Matrix objectives = scenario->getMatrixOfObjectiveFunctionsValues();

  long calls = 0;
  EXPECT_FALSE(scenario->run([&](long, long) { return ++calls < 4; }));
  EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::cancelled);
  EXPECT_EQ(calls, 4);
  EXPECT_EQ(scenario->getMatrixOfSolutions(), solutions);
  EXPECT_EQ(scenario->getMatrixOfObjectiveFunctionsValues(), objectives);
  EXPECT_TRUE(scenario->run(nullptr));
}

TEST(RuleOptimization, OneObjectiveIsRefusedBeforeAnySimulation) {
  auto scenario = optimisation(OptimizationAlgorithmType::smpso, 4, 4, 2);
  auto& execution = scenario->getExecutionOptimization();
  execution.deleteObjectiveFunction(ObjectiveFunctionType::evaporationLoss);
  EXPECT_THROW_TEXT(execution.configureAlgorithm(OptimizationAlgorithmType::omopso),
                    std::runtime_error,
                    "ExecutionOptimization::configureAlgorithm: There must be at least two "
                    "objective functions.");
  long calls = 0;
  EXPECT_FALSE(scenario->run([&](long, long) { return ++calls > 0; }));
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::configurationError);
  const auto findings = scenario->getSceneryCheck()->getAllErrors();
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].message, "Quantidade de funções objetivo inferior a 2:");
}

TEST(RuleOptimization, ObjectiveFunctionsAreManagedByType) {
  auto scenario = optimisation(OptimizationAlgorithmType::smpso, 4, 4, 2);
  auto& execution = scenario->getExecutionOptimization();
  EXPECT_TRUE(execution.isDefinedObjectiveFunction(ObjectiveFunctionType::evaporationLoss));
  EXPECT_THROW_TEXT(
      scenario->addMaximizeObjectiveFunction(ObjectiveFunctionType::evaporationLoss, {}),
      std::invalid_argument,
      "ExecutionOptimization::addObjectiveFunction: the type:Perda por evaporaçãoAlready added");
  EXPECT_THROW_TEXT(execution.getObjectiveFunction(ObjectiveFunctionType::pumpingCost),
                    std::invalid_argument,
                    "ExecutionOptimization:getObjectiveFunction: The objective function has not "
                    "been added");
  EXPECT_THROW_TEXT(execution.deleteObjectiveFunction(ObjectiveFunctionType::pumpingCost),
                    std::invalid_argument,
                    "ExecutionOptimization:deleteObjectiveFunction: The objective function has not "
                    "been added");
  scenario->addMaximizeObjectiveFunction(ObjectiveFunctionType::spillVolume, {});
  EXPECT_FALSE(execution.getObjectiveFunction(ObjectiveFunctionType::spillVolume)->isMinimization());
}

TEST(RuleOptimization, ACopyOptimisesItsOwnElements) {
  PseudoRandom::setSeed(9);
  auto original = optimisation(OptimizationAlgorithmType::smpso, 6, 6, 3);
  const auto copy = std::static_pointer_cast<RuleOptimizationScenario>(original->copy());
  ASSERT_TRUE(copy->run(nullptr));
  EXPECT_FALSE(copy->getMatrixOfSolutions().empty());
  EXPECT_TRUE(original->getMatrixOfSolutions().empty());
  for (const auto& element : original->getElements()) EXPECT_TRUE(element->getOutputSeries().empty());
}

TEST(RuleOptimization, HedgingCurveMeasuresTheGuaranteesAgainstThoseRequired) {
  TwoReservoirs system(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 3,
                                                      kTwoYears, "Curva guia"));
  auto rule = std::make_shared<OptHydrologicalStateReleaseRule>();
  rule->setReservoirsOfSystem({system.reservoirs[0]});
  rule->setStates(2, {0.5}, {4.0, 8.0});
  rule->setOptStates({0.5}, {4.0, 8.0}, {90.0, 80.0});
  const auto& settings = system.net.scenario->getSettingsManager();
  Scenario::getSettings<ReservoirRuleSettings>(system.reservoirs[0], settings)->setRule(rule);
  ASSERT_TRUE(system.net.scenario->run(nullptr));

  const auto function =
      ObjectiveFunctionFactory::make(ObjectiveFunctionType::hedgingCurve, true, system.reservoirs);
  auto& manager = ScenarioManager::getInstance();
  manager.setCurrentScenario(nullptr);
  EXPECT_EQ(function->getValue(0), 0.0);  // no scenario to read the rules from

  manager.setCurrentScenario(system.net.scenario);
  const auto achieved = rule->getGuaranteeResults();
  ASSERT_EQ(achieved.size(), 2u);
  // The second reservoir's constant rule adds nothing.
  const double expected = (90.0 - achieved[0]) * (90.0 - achieved[0]) / 90.0 +
                          (80.0 - achieved[1]) * (80.0 - achieved[1]) / 80.0;
  EXPECT_NEAR(function->getValue(0), expected, 1e-9);
  EXPECT_GT(expected, 0.0);
  manager.setCurrentScenario(nullptr);
}

TEST(RuleOptimization, EveryThreadCountGivesTheSameFront) {
  for (auto type : {OptimizationAlgorithmType::smpso, OptimizationAlgorithmType::omopso,
                    OptimizationAlgorithmType::pso}) {
    SCOPED_TRACE(OptimizationAlgorithmTypeNames::nameOf(type));
    Matrix solutions[2];
    Matrix objectives[2];
    long calls[2] = {0, 0};
    const unsigned int threads[2] = {1, 3};
    for (int k = 0; k < 2; ++k) {
      PseudoRandom::setSeed(21);
      auto scenario = optimisation(type, 7, 7, 4);
      scenario->getExecutionOptimization().setThreads(threads[k]);
      ASSERT_TRUE(scenario->run([&](long, long) { return ++calls[k] > 0; }));
      solutions[k] = scenario->getMatrixOfSolutions();
      objectives[k] = scenario->getMatrixOfObjectiveFunctionsValues();
    }
    EXPECT_EQ(solutions[0], solutions[1]);
    EXPECT_EQ(objectives[0], objectives[1]);
    EXPECT_EQ(calls[0], 35);  // 7 * (1 + 4) on either thread count
    EXPECT_EQ(calls[1], 35);
  }
}
