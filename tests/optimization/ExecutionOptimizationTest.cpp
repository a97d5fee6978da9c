#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "optimization/OptimizationUtils.h"
#include "optimization/TwoReservoirs.h"
#include "optimization/kernel/PseudoRandom.h"

using namespace optimisationtest;

namespace {

// Every result series of every element, by element id and kind.
using Results = std::map<std::pair<unsigned int, SerieType>, Serie::Values>;

Results resultsOf(const Scenario& scenario) {
  Results results;
  for (const auto& element : scenario.getElements()) {
    for (const auto& entry : element->getOutputSeries().at(0)->getSeries()) {
      results.emplace(std::make_pair(element->getId(), entry.first),
                      entry.second->getMapOfJulianToValues());
    }
  }
  return results;
}

struct PlainRun {
  Results results;
  std::vector<double> objectives;
};

// One candidate in a plain rule scenario of the same system, run once.
PlainRun plainRun(const std::vector<double>& candidate) {
  TwoReservoirs system(std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                      kTwoYears, "Simulação"));
  OptimizationUtils::setDecisionVars(candidate, system.reservoirs,
                                     system.net.scenario->getSettingsManager());
  EXPECT_TRUE(system.net.scenario->run(nullptr));
  return {resultsOf(*system.net.scenario), system.objectives()};
}

}  // namespace

// An optimisation simulates candidate after candidate in the same result series: each
// simulation must leave exactly the series that a plain run of its candidate makes, whatever
// was simulated before.
TEST(ExecutionOptimization, EachSimulationGivesThePlainRunOfItsCandidate) {
  const auto scenario = optimisation(OptimizationAlgorithmType::smpso, 2, 2, 1);
  PseudoRandom::setSeed(1);
  ASSERT_TRUE(scenario->run(nullptr));
  auto& execution = scenario->getExecutionOptimization();
  const std::vector<std::vector<double>> candidates = {
      {0.2, 0.7}, {0.9, 0.05}, {0.2, 0.7}, {0.0, 1.0}};
  for (const auto& candidate : candidates) {
    SCOPED_TRACE(testing::PrintToString(candidate));
    const std::vector<double> objectives = execution.simulate(candidate);
    const PlainRun expected = plainRun(candidate);
    const Results simulated = resultsOf(*scenario);
    ASSERT_EQ(simulated.size(), expected.results.size());
    for (const auto& entry : expected.results) {
      EXPECT_TRUE(simulated.at(entry.first) == entry.second);
    }
    EXPECT_EQ(objectives, expected.objectives);
  }
}
