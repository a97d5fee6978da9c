#include "optimization/kernel/Algorithm.h"

#include <vector>

#include "optimization/kernel/Problem.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/XReal.h"

void Algorithm::evaluateSwarm(SolutionSet* swarm, int size, bool withConstraints) {
  std::vector<Solution*> solutions;
  for (int i = 0; i < size; ++i) solutions.push_back(swarm->get(i));
  problem->evaluateAll(solutions);
  if (!withConstraints) return;
  for (Solution* solution : solutions) problem->evaluateConstraints(solution);
}

void Algorithm::moveWithinLimits(SolutionSet* swarm, int size, double** speed, double chVel1,
                                 double chVel2) {
  for (int i = 0; i < size; ++i) {
    XReal particle(swarm->get(i));
    for (int j = 0; j < particle.getNumberOfDecisionVariables(); ++j) {
      particle.setValue(j, particle.getValue(j) + speed[i][j]);
      if (particle.getValue(j) < problem->getLowerLimit(j)) {
        particle.setValue(j, problem->getLowerLimit(j));
        speed[i][j] = speed[i][j] * chVel1;
      }
      if (particle.getValue(j) > problem->getUpperLimit(j)) {
        particle.setValue(j, problem->getUpperLimit(j));
        speed[i][j] = speed[i][j] * chVel2;
      }
    }
  }
}
