#include "optimization/kernel/UniformMutation.h"

#include "BoundsRepair.h"
#include "ParameterReading.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/XReal.h"

UniformMutation::UniformMutation(const std::map<std::string, void*>& parameters)
    : Mutation(parameters),
      probability(requireParameter<double>(parameters, "probability", "UniformMutation")),
      perturbation(requireParameter<double>(parameters, "perturbation", "UniformMutation")) {}

void* UniformMutation::execute(void* object) {
  Solution* solution = static_cast<Solution*>(object);
  doMutation(probability, solution);
  return solution;
}

void UniformMutation::doMutation(double probability, Solution* solution) {
  XReal x(solution);
  for (int i = 0; i < solution->getNumberOfVariables(); ++i) {
    const double upper = x.getUpperBound(i);
    const double lower = x.getLowerBound(i);
    const double half = (upper - lower) * 0.5;
    if (PseudoRandom::randDouble() >= probability) continue;
    double tmp = (PseudoRandom::randDouble() - 0.5) * perturbation + x.getValue(i);
    tmp = repairBounds(tmp, lower, upper, half, perturbation);
    x.setValue(i, tmp);
  }
}
