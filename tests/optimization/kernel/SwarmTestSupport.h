#pragma once

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/NonUniformMutation.h"
#include "optimization/kernel/PolynomialMutation.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/UniformMutation.h"

// One variable x in [0, 1] with objectives (x, 1 - x): every two distinct points are mutually
// non-dominated, so archive contents are easy to follow by hand.
class LineProblem : public Problem {
 public:
  LineProblem() {
    numberOfVariables = 1;
    numberOfObjectives = 2;
    lowerLimit = {0.0};
    upperLimit = {1.0};
    solutionType = new RealSolutionType(this);
  }
  void evaluate(Solution* solution) override {
    const double x = solution->getDecisionVariables()[0]->getValue();
    solution->setObjective(0, x);
    solution->setObjective(1, 1.0 - x);
  }
};

// The operators and parameters of a multi-objective swarm run, owned here and outliving the run.
struct SwarmSetup {
  int swarmSize;
  int archiveSize;
  int maxIterations;
  double mutationProbability;
  double distributionIndex = 20.0;
  double perturbation = 0.5;
  std::unique_ptr<PolynomialMutation> polynomial;
  std::unique_ptr<UniformMutation> uniform;
  std::unique_ptr<NonUniformMutation> nonUniform;

  SwarmSetup(int swarm, int archive, int iterations, double probability)
      : swarmSize(swarm),
        archiveSize(archive),
        maxIterations(iterations),
        mutationProbability(probability) {
    polynomial = std::make_unique<PolynomialMutation>(std::map<std::string, void*>{
        {"probability", &mutationProbability}, {"distributionIndex", &distributionIndex}});
    uniform = std::make_unique<UniformMutation>(std::map<std::string, void*>{
        {"probability", &mutationProbability}, {"perturbation", &perturbation}});
    nonUniform = std::make_unique<NonUniformMutation>(
        std::map<std::string, void*>{{"probability", &mutationProbability},
                                     {"perturbation", &perturbation},
                                     {"maxIterations", &maxIterations}});
  }

  template <typename Swarm>
  void configure(Swarm& swarm) {
    swarm.setInputParameter("swarmSize", &swarmSize);
    swarm.setInputParameter("archiveSize", &archiveSize);
    swarm.setInputParameter("maxIterations", &maxIterations);
    swarm.addOperator("mutation", polynomial.get());
    swarm.addOperator("uniformMutation", uniform.get());
    swarm.addOperator("nonUniformMutation", nonUniform.get());
  }
};

template <typename Swarm>
std::unique_ptr<SolutionSet> runSwarm(Problem* problem, SwarmSetup& setup, int seed) {
  PseudoRandom::setSeed(seed);
  Swarm swarm(problem);
  setup.configure(swarm);
  return std::unique_ptr<SolutionSet>(swarm.execute());
}

// Standard settings on a ZDT problem of 30 variables: 100 particles, 100 leaders, 250 iterations,
// mutation probability 1/30.
template <typename Swarm>
std::unique_ptr<SolutionSet> runOnZdt(Zdt& problem, int seed) {
  SwarmSetup setup(100, 100, 250, 1.0 / 30.0);
  return runSwarm<Swarm>(&problem, setup, seed);
}

// No member of the set dominates another.
inline bool mutuallyNonDominated(const SolutionSet& set) {
  DominanceComparator dominance;
  for (int i = 0; i < set.size(); ++i) {
    for (int j = 0; j < set.size(); ++j) {
      if (i != j && dominance.compare(set.get(i), set.get(j)) == -1) return false;
    }
  }
  return true;
}

inline std::vector<double> sortedFirstVariables(const SolutionSet& set) {
  std::vector<double> values;
  for (int i = 0; i < set.size(); ++i) values.push_back(variablesOf(set.get(i))[0]);
  std::sort(values.begin(), values.end());
  return values;
}
