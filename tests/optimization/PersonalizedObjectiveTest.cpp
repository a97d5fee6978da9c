#include <gtest/gtest.h>

#include <limits>

#include "checks/SceneryCheck.h"
#include "common/SerieStatistics.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/TwoReservoirs.h"
#include "optimization/expression/ConstantExpression.h"
#include "optimization/expression/SerieExpression.h"
#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"
#include "optimization/kernel/PseudoRandom.h"
#include "support/ExpectThrow.h"
#include "vocabulary/EnumFactories.h"

using namespace optimisationtest;

namespace {

// The sum over the months of the shortage (m³/s) of the demands of ids.
ExpressionPtr sumOfShortages(std::vector<unsigned int> ids) {
  auto root = std::make_shared<SummationToSeveralElementsWithSingleFunctionExpression>(
      std::weak_ptr<ExpressionDefinition>(), "Déficits");
  auto shortage = std::make_shared<SerieExpression>(root, "Escassez");
  shortage->setSerieOutputType(SerieType::supplyShortage);
  root->setExpression(shortage);
  root->setVectorOfElementIDs(std::move(ids));
  return root;
}

ExpressionDefinitionConfiguration personal(ExpressionPtr root, bool enabled = true,
                                           bool minimization = true) {
  return ExpressionDefinitionConfiguration(std::move(root), enabled, minimization,
                                           EnumUnitFactory::makeUnit("m³/s"));
}

// The first demand's monthly shortages summed, by a simulation of candidate on its own.
double firstDemandShortage(const std::vector<double>& candidate) {
  TwoReservoirs system(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                      kTwoYears, "Simulação"));
  OptimizationUtils::setDecisionVars(candidate, system.reservoirs,
                                     system.net.scenario->getSettingsManager());
  EXPECT_TRUE(system.net.scenario->run(nullptr));
  return SerieStatistics::sum(*system.demands[0]->getOutputSerie(SerieType::supplyShortage, 0));
}

// A swarm of the first demand's shortage against the evaporation of both reservoirs.
class PersonalizedObjective : public ::testing::Test {
 protected:
  PersonalizedObjective()
      : scenario(std::make_shared<RuleOptimizationScenario>(1, kTwoYears, "Otimização")),
        system(scenario),
        execution(scenario->getExecutionOptimization()) {
    execution.cleanObjectiveFunctions();
    execution.addExpressionDefinitionConfiguration(personal(firstDemandsShortages()));
    scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::evaporationLoss,
                                           system.reservoirs);
    execution.configureAlgorithm(OptimizationAlgorithmType::smpso);
  }

  ExpressionPtr firstDemandsShortages() const {
    return sumOfShortages({system.demands[0]->getId()});
  }

  std::shared_ptr<RuleOptimizationScenario> scenario;
  TwoReservoirs system;
  ExecutionOptimization& execution;
};

}  // namespace

TEST_F(PersonalizedObjective, DrivesASwarmToTheBestReleaseOfABruteForceGrid) {
  // Only the first reservoir feeds the first demand, so a line of its releases finds the optimum.
  double best = std::numeric_limits<double>::infinity();
  for (int step = 0; step <= 40; ++step) {
    best = std::min(best, firstDemandShortage({step / 40.0, 0.0}));
  }
  ASSERT_GT(best, 1.0);

  PseudoRandom::setSeed(7);
  auto& parameters = static_cast<MPSOParameters&>(*execution.getAlgorithmParameters());
  parameters.swarmSize = parameters.archiveSize = 20;
  parameters.maxIterations = 40;
  ASSERT_TRUE(scenario->run(nullptr));

  const auto& objectives = scenario->getMatrixOfObjectiveFunctionsValues();
  const auto& solutions = scenario->getMatrixOfSolutions();
  ASSERT_GT(solutions.size(), 5u);
  double found = std::numeric_limits<double>::infinity();
  for (std::size_t row = 0; row < solutions.size(); ++row) {
    ASSERT_EQ(objectives[row].size(), 2u);
    // The personalised objective comes after the functions: it is the formula's value on that
    // candidate's own run.
    EXPECT_EQ(objectives[row][1], firstDemandShortage(solutions[row])) << "row " << row;
    found = std::min(found, objectives[row][1]);
  }
  EXPECT_NEAR(found, best, 0.02 * best);
}

TEST_F(PersonalizedObjective, ADisabledFunctionIsNotAnObjective) {
  EXPECT_EQ(execution.numberOfObjectives(), 2);
  execution.cleanExpressionDefinitionConfigurations();
  execution.addExpressionDefinitionConfiguration(personal(firstDemandsShortages(), false));
  EXPECT_EQ(execution.numberOfObjectives(), 1);
  EXPECT_THROW_TEXT(execution.configureAlgorithm(OptimizationAlgorithmType::smpso),
                    std::runtime_error,
                    "ExecutionOptimization::configureAlgorithm: There must be at least two "
                    "objective functions.");
}

TEST_F(PersonalizedObjective, AFunctionToMaximiseIsStillMinimisedAsWritten) {
  PseudoRandom::setSeed(3);
  execution.cleanExpressionDefinitionConfigurations();
  execution.addExpressionDefinitionConfiguration(personal(firstDemandsShortages(), true, false));
  ASSERT_TRUE(scenario->run(nullptr));
  const auto& objectives = scenario->getMatrixOfObjectiveFunctionsValues();
  const auto& solutions = scenario->getMatrixOfSolutions();
  ASSERT_FALSE(solutions.empty());
  for (std::size_t row = 0; row < solutions.size(); ++row) {
    EXPECT_EQ(objectives[row][1], firstDemandShortage(solutions[row]));
    EXPECT_GT(objectives[row][1], 0.0);
  }
}

TEST_F(PersonalizedObjective, TheCheckRefusesAFormulaThatCannotBeEvaluated) {
  execution.cleanExpressionDefinitionConfigurations();
  auto notOnElements = std::make_shared<ConstantExpression>(std::weak_ptr<ExpressionDefinition>(),
                                                            "Constante", "fx()", 2.0);
  execution.addExpressionDefinitionConfiguration(personal(notOnElements));
  execution.addExpressionDefinitionConfiguration(personal(sumOfShortages({999})));
  auto hole = firstDemandsShortages();
  std::static_pointer_cast<SummationToSeveralElementsWithSingleFunctionExpression>(hole)
      ->setExpression(nullptr);
  execution.addExpressionDefinitionConfiguration(personal(hole));

  EXPECT_FALSE(scenario->run(nullptr));
  const auto findings = scenario->getSceneryCheck()->getAllErrors();
  ASSERT_EQ(findings.size(), 3u);
  EXPECT_EQ(findings[0].message, "Função objetivo personalizada incompleta:");
  EXPECT_EQ(findings[0].elementName, "Constante");
  EXPECT_EQ(findings[1].message, "Função objetivo personalizada sobre elemento inexistente:");
  EXPECT_EQ(findings[2].message, "Função objetivo personalizada incompleta:");
  EXPECT_THROW_TEXT(execution.valueOf(execution.getVectorOfExpressionDefinitionConfiguration()[1]),
                    std::invalid_argument,
                    "ExecutionOptimization: personalised objective function \"Déficits\": no "
                    "element has id 999");
}
