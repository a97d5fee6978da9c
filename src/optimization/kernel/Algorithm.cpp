#include "optimization/kernel/Algorithm.h"

#include <vector>

#include "optimization/kernel/Problem.h"
#include "optimization/kernel/SolutionSet.h"

void Algorithm::evaluateSwarm(SolutionSet* swarm, int size, bool withConstraints) {
  std::vector<Solution*> solutions;
  for (int i = 0; i < size; ++i) solutions.push_back(swarm->get(i));
  problem->evaluateAll(solutions);
  if (!withConstraints) return;
  for (Solution* solution : solutions) problem->evaluateConstraints(solution);
}
