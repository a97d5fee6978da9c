#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/PSO.h"
#include "optimization/kernel/PseudoRandom.h"

namespace {

std::unique_ptr<SolutionSet> runPso(Problem* problem, int swarmSize, int maxIterations, int seed) {
  PseudoRandom::setSeed(seed);
  PSO pso(problem);
  pso.setInputParameter("swarmSize", &swarmSize);
  pso.setInputParameter("maxIterations", &maxIterations);
  return std::unique_ptr<SolutionSet>(pso.execute());
}

// Objective 0 given by a function of the evaluation's sequence number and the variables; keeps
// the variables of every evaluation.
class ScriptedProblem : public FixedProblem {
 public:
  ScriptedProblem(int variables, std::function<double(long, const std::vector<double>&)> script)
      : FixedProblem(variables, 1, -1.0, 1.0), script(std::move(script)) {}
  void evaluate(Solution* solution) override {
    const std::vector<double> x = variablesOf(solution);
    solution->setObjective(0, script(static_cast<long>(evaluated.size()), x));
    evaluated.push_back(x);
  }
  std::vector<std::vector<double>> evaluated;

 private:
  std::function<double(long, const std::vector<double>&)> script;
};

TEST(PSO, FindsTheMinimumOfATenDimensionalSphere) {
  Sphere sphere(10);
  // Fifty particles: with much smaller swarms the constricted rule can stall before the minimum.
  std::unique_ptr<SolutionSet> result = runPso(&sphere, 50, 500, 2024);
  ASSERT_EQ(result->size(), 1);
  EXPECT_LT(result->get(0)->getObjective(0), 1e-5);
  for (double x : variablesOf(result->get(0))) EXPECT_NEAR(x, 0.0, 1e-3);
  EXPECT_EQ(sphere.evaluations, 50L * (1 + 500));
}

TEST(PSO, SameSeedSameResultBitForBit) {
  Sphere first(5);
  Sphere second(5);
  std::unique_ptr<SolutionSet> a = runPso(&first, 12, 40, 77);
  std::unique_ptr<SolutionSet> b = runPso(&second, 12, 40, 77);
  EXPECT_TRUE(identicalSets(*a, *b));
  Sphere third(5);
  std::unique_ptr<SolutionSet> c = runPso(&third, 12, 40, 78);
  EXPECT_FALSE(identicalSets(*a, *c));
}

TEST(PSO, ZeroIterationsGiveTheBestOfTheRandomSwarm) {
  Sphere sphere(3);
  std::unique_ptr<SolutionSet> result = runPso(&sphere, 8, 0, 5);
  // The same eight particles made again from the same seed.
  PseudoRandom::setSeed(5);
  Sphere again(3);
  double lowest = 1e300;
  std::vector<double> expected;
  for (int i = 0; i < 8; ++i) {
    Solution particle(&again);
    again.evaluate(&particle);
    if (particle.getObjective(0) < lowest) {
      lowest = particle.getObjective(0);
      expected = variablesOf(&particle);
    }
  }
  EXPECT_EQ(variablesOf(result->get(0)), expected);
  EXPECT_EQ(sphere.evaluations, 8);
}

TEST(PSO, ASwarmOfOneNeverMoves) {
  // Personal and global best are the particle itself, so the first speed is 0, and so are all
  // later ones.
  ScriptedProblem problem(4, [](long, const std::vector<double>& x) { return x[0]; });
  std::unique_ptr<SolutionSet> result = runPso(&problem, 1, 6, 9);
  ASSERT_EQ(problem.evaluated.size(), 7u);
  for (const auto& x : problem.evaluated) EXPECT_EQ(x, problem.evaluated[0]);
  EXPECT_EQ(variablesOf(result->get(0)), problem.evaluated[0]);
}

TEST(PSO, ResultIsTheLastGenerationsBestNotTheBestEverSeen) {
  // The initial swarm scores 0 (the best ever); later evaluations score 1000 - k, so the last
  // generation's lowest is its last particle.
  const int swarm = 5;
  const int iterations = 3;
  ScriptedProblem problem(2, [](long k, const std::vector<double>&) {
    return k < swarm ? 0.0 : 1000.0 - static_cast<double>(k);
  });
  std::unique_ptr<SolutionSet> result = runPso(&problem, swarm, iterations, 3);
  const long last = swarm * (1 + iterations) - 1;
  EXPECT_EQ(result->get(0)->getObjective(0), 1000.0 - last);
  EXPECT_EQ(variablesOf(result->get(0)), problem.evaluated[last]);
}

TEST(PSO, EqualObjectivesInTheLastGenerationGiveTheLowerIndex) {
  const int swarm = 4;
  ScriptedProblem problem(2,
                          [](long k, const std::vector<double>&) { return k < swarm ? 5.0 : 1.0; });
  std::unique_ptr<SolutionSet> result = runPso(&problem, swarm, 2, 13);
  EXPECT_EQ(variablesOf(result->get(0)), problem.evaluated[swarm * 2]);
}

TEST(PSO, ParticlesStopOnTheLimitsAndKeepTheirSpeed) {
  // A minimum far outside the box drags the swarm onto the upper limits, where it stays.
  ScriptedProblem problem(3, [](long, const std::vector<double>& x) {
    double sum = 0.0;
    for (double value : x) sum += (value - 50.0) * (value - 50.0);
    return sum;
  });
  std::unique_ptr<SolutionSet> result = runPso(&problem, 6, 60, 21);
  for (double x : variablesOf(result->get(0))) EXPECT_EQ(x, 1.0);
}

TEST(PSO, UnusedCoefficientsStillAnswer) {
  FixedProblem problem(1, 1);
  PSO pso(&problem);
  EXPECT_DOUBLE_EQ(pso.inertiaWeight(5, 10, 0.9, 0.4), 0.65);
  EXPECT_EQ(pso.constrictionCoefficient(2.0, 2.0), 1.0);
  // phi = 4.1: 2 / |2 - 4.1 - sqrt(16.81 - 16.4)|
  EXPECT_DOUBLE_EQ(pso.constrictionCoefficient(2.05, 2.05),
                   2.0 / std::fabs(2.0 - 4.1 - std::sqrt(4.1 * 4.1 - 16.4)));
  EXPECT_NEAR(pso.constrictionCoefficient(2.05, 2.05), 0.7298437881283576, 1e-12);
  const double limits[] = {0.5};
  EXPECT_EQ(pso.velocityConstriction(7.0, limits, limits, 0, 0), 7.0);
}

TEST(PSO, CanRunAgainOnTheSameInstance) {
  Sphere sphere(3);
  int swarmSize = 5;
  int maxIterations = 4;
  PSO pso(&sphere);
  pso.setInputParameter("swarmSize", &swarmSize);
  pso.setInputParameter("maxIterations", &maxIterations);
  PseudoRandom::setSeed(1);
  std::unique_ptr<SolutionSet> first(pso.execute());
  PseudoRandom::setSeed(1);
  std::unique_ptr<SolutionSet> second(pso.execute());
  EXPECT_TRUE(identicalSets(*first, *second));
}

}  // namespace
