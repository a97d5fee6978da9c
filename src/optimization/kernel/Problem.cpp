#include "optimization/kernel/Problem.h"

#include <iostream>

#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/SolutionType.h"

namespace {
double readLimit(const std::vector<double>& limits, int i, int numberOfVariables,
                 const char* fault) {
  if (limits.empty() || i < 0 || i >= numberOfVariables) std::cout << fault << std::endl;
  if (i < 0 || static_cast<std::size_t>(i) >= limits.size()) throw KernelException(fault);
  return limits[i];
}
}  // namespace

Problem::~Problem() { delete solutionType; }

void Problem::evaluateConstraints(Solution*) {}

void Problem::evaluateAll(const std::vector<Solution*>& solutions) {
  for (Solution* solution : solutions) evaluate(solution);
}

void Problem::setSolutionType(SolutionType* type) {
  if (type == solutionType) return;
  delete solutionType;
  solutionType = type;
}

double Problem::getLowerLimit(int i) const {
  return readLimit(lowerLimit, i, numberOfVariables,
                   "Error: lower limits have been not initialized or accessing to a variable out "
                   "of range");
}

double Problem::getUpperLimit(int i) const {
  return readLimit(upperLimit, i, numberOfVariables,
                   "Error: upper limits have been not initialized or accessing to a variable out "
                   "of range");
}

int Problem::getLength(int i) const { return length.empty() ? 16 : length[i]; }

int Problem::getNumberOfBits() const {
  if (length.empty()) return 16 * numberOfVariables;
  int sum = 0;
  for (int bits : length) sum += bits;
  return sum;
}
