#include "optimization/kernel/PSO.h"

#include <cmath>
#include <map>
#include <string>

#include "ParameterReading.h"
#include "optimization/kernel/BestSolutionSelection.h"
#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/XReal.h"

PSO::PSO(Problem* problem)
    : Algorithm(problem), comparator(new ObjectiveComparator(0)), findBestSolution(nullptr) {
  std::map<std::string, void*> parameters;
  parameters["comparator"] = comparator;
  findBestSolution = new BestSolutionSelection(parameters);
}

PSO::~PSO() {
  deleteParams();
  delete findBestSolution;
  delete comparator;
}

void PSO::initParams() {
  // A run left by an exception from evaluate still holds its state: free it before rebuilding.
  deleteParams();
  swarmSize = requireParameter<int>(inputParameters, "swarmSize", "PSO");
  maxIterations = requireParameter<int>(inputParameters, "maxIterations", "PSO");
  if (swarmSize < 1) KernelException::raise("PSO: parameter swarmSize below 1");
  polynomialMutation = getOperator("mutation");
  iteration = 0;

  const int n = problem->getNumberOfVariables();
  particles = new SolutionSet(swarmSize);
  best = new Solution*[swarmSize]();
  speed = new double*[swarmSize]();
  allocatedParticles = swarmSize;
  deltaMax = new double[n];
  deltaMin = new double[n];
  for (int j = 0; j < n; ++j) {
    const double range = problem->getUpperLimit(j) - problem->getLowerLimit(j);
    deltaMax[j] = range * 0.5;
    deltaMin[j] = -range * 0.5;
  }
}

void PSO::deleteParams() {
  for (int i = 0; i < allocatedParticles; ++i) {
    if (speed != nullptr) delete[] speed[i];
    if (best != nullptr) delete best[i];
  }
  allocatedParticles = 0;
  delete[] speed;
  delete[] best;
  delete particles;
  delete globalBest;
  delete[] deltaMax;
  delete[] deltaMin;
  speed = nullptr;
  best = nullptr;
  particles = nullptr;
  globalBest = nullptr;
  deltaMax = nullptr;
  deltaMin = nullptr;
}

double PSO::inertiaWeight(int iter, int miter, double wma, double wmi) const {
  return wma - (wma - wmi) * iter / miter;
}

double PSO::constrictionCoefficient(double c1, double c2) const {
  const double phi = c1 + c2;
  if (phi <= 4) return 1.0;
  return 2.0 / std::fabs(2.0 - phi - std::sqrt(phi * phi - 4.0 * phi));
}

double PSO::velocityConstriction(double v, const double*, const double*, int, int) const {
  return v;
}

void PSO::computeSpeed(int, int) {
  XReal bestGlobal(globalBest);
  for (int i = 0; i < swarmSize; ++i) {
    XReal particle(particles->get(i));
    XReal bestParticle(best[i]);
    const double r1 = PseudoRandom::randDouble(r1Min, r1Max);
    const double r2 = PseudoRandom::randDouble(r2Min, r2Max);
    for (int j = 0; j < particle.getNumberOfDecisionVariables(); ++j) {
      const double x = particle.getValue(j);
      speed[i][j] =
          kConstriction * (speed[i][j] + kAcceleration * r1 * (bestParticle.getValue(j) - x) +
                           kAcceleration * r2 * (bestGlobal.getValue(j) - x));
    }
  }
}

void PSO::computeNewPositions() { moveWithinLimits(particles, swarmSize, speed, ChVel1, ChVel2); }

void PSO::mopsoMutation(int, int) {
  for (int i = 0; i < particles->size(); ++i) {
    if (i % 6 == 0) polynomialMutation->execute(particles->get(i));
  }
}

SolutionSet* PSO::execute() {
  initParams();
  evaluations = 0;

  for (int i = 0; i < swarmSize; ++i) particles->add(new Solution(problem));
  evaluateSwarm(particles, swarmSize, false);
  evaluations += swarmSize;
  for (int i = 0; i < swarmSize; ++i) {
    Solution* particle = particles->get(i);
    if (globalBest == nullptr || particle->getObjective(0) < globalBest->getObjective(0)) {
      delete globalBest;
      globalBest = new Solution(particle);
    }
  }

  const int n = problem->getNumberOfVariables();
  for (int i = 0; i < swarmSize; ++i) speed[i] = new double[n]();
  for (int i = 0; i < swarmSize; ++i) best[i] = new Solution(particles->get(i));

  while (iteration < maxIterations) {
    delete static_cast<int*>(findBestSolution->execute(particles));
    computeSpeed(iteration, maxIterations);
    computeNewPositions();
    evaluateSwarm(particles, swarmSize, false);
    evaluations += swarmSize;
    for (int i = 0; i < swarmSize; ++i) {
      Solution* particle = particles->get(i);
      if (best[i]->getObjective(0) > particle->getObjective(0)) {
        delete best[i];
        best[i] = new Solution(particle);
      }
      if (globalBest->getObjective(0) > particle->getObjective(0)) {
        delete globalBest;
        globalBest = new Solution(particle);
      }
    }
    ++iteration;
  }

  int* bestIndex = static_cast<int*>(findBestSolution->execute(particles));
  SolutionSet* result = new SolutionSet(1);
  result->add(new Solution(particles->get(*bestIndex)));
  delete bestIndex;
  deleteParams();
  return result;
}
