#include "optimization/kernel/NonUniformMutation.h"

#include <cmath>

#include "BoundsRepair.h"
#include "ParameterReading.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/XReal.h"

NonUniformMutation::NonUniformMutation(const std::map<std::string, void*>& parameters)
    : Mutation(parameters),
      probability(readParameter<double>(parameters, "probability", 0.0)),
      perturbation(readParameter<double>(parameters, "perturbation", 0.0)),
      maxIterations(readParameter<int>(parameters, "maxIterations", 0)),
      currentIteration(0) {}

void* NonUniformMutation::execute(void* object) {
  currentIteration = readParameter<int>(parameters, "currentIteration", currentIteration);
  Solution* solution = static_cast<Solution*>(object);
  doMutation(probability, solution);
  return solution;
}

void NonUniformMutation::doMutation(double probability, Solution* solution) {
  XReal x(solution);
  for (int i = 0; i < solution->getNumberOfVariables(); ++i) {
    const double upper = x.getUpperBound(i);
    const double lower = x.getLowerBound(i);
    const double half = (upper - lower) * 0.5;
    if (PseudoRandom::randDouble() >= probability) continue;
    const double value = x.getValue(i);
    const double r = PseudoRandom::randDouble();
    const double y = r > 0.5 ? lower - value : upper - value;
    double tmp = value + delta(y, perturbation);
    tmp = repairBounds(tmp, lower, upper, half, perturbation);
    x.setValue(i, tmp);
  }
}

double NonUniformMutation::delta(double y, double b) {
  const double r2 = PseudoRandom::randDouble();
  const double progress = static_cast<double>(currentIteration) / maxIterations;
  return y * (1.0 - std::pow(r2, std::pow(1.0 - progress, b)));
}
