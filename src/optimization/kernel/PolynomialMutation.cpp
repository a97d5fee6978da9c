#include "optimization/kernel/PolynomialMutation.h"

#include <cmath>

#include "ParameterReading.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/XReal.h"

namespace {
constexpr double kExponent = 21.0;
}  // namespace

PolynomialMutation::PolynomialMutation(const std::map<std::string, void*>& parameters)
    : Mutation(parameters),
      probability(readParameter<double>(parameters, "probability", 0.0)),
      distributionIndex(readParameter<double>(parameters, "distributionIndex", 20.0)) {}

void* PolynomialMutation::execute(void* object) {
  Solution* solution = static_cast<Solution*>(object);
  doMutation(probability, solution);
  return solution;
}

void PolynomialMutation::doMutation(double probability, Solution* solution) {
  XReal x(solution);
  for (int i = 0; i < solution->getNumberOfVariables(); ++i) {
    if (PseudoRandom::randDouble() > probability) continue;
    double y = x.getValue(i);
    const double yl = x.getLowerBound(i);
    const double yu = x.getUpperBound(i);
    const double d = yu - yl;
    const double rnd = PseudoRandom::randDouble();
    const double mutPow = 1.0 / (distributionIndex + 1.0);
    double deltaq;
    if (rnd > 0.5) {
      const double xy = 1.0 - (yu - y) / d;
      const double val = 2.0 * (1.0 - rnd) + 2.0 * (rnd - 0.5) * std::pow(xy, kExponent);
      deltaq = 1.0 - std::pow(val, mutPow);
    } else {
      const double xy = 1.0 - (y - yl) / d;
      const double val = 2.0 * rnd + (1.0 - 2.0 * rnd) * std::pow(xy, kExponent);
      deltaq = std::pow(val, mutPow) - 1.0;
    }
    y = y + deltaq * d;
    if (y < yl) y = yl;
    if (y > yu) y = yu;
    x.setValue(i, y);
  }
}
