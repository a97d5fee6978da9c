#include "optimization/kernel/Solution.h"

#include <algorithm>
#include <sstream>

#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/SolutionType.h"
#include "optimization/kernel/Variable.h"

Solution::Solution(Problem* problem)
    : problem(problem),
      type(problem->getSolutionType()),
      variable(type->createVariables()),
      variableArrayLength(type->variableArrayLength()),
      numberOfVariables(problem->getNumberOfVariables()),
      objective(new double[problem->getNumberOfObjectives()]()),
      numberOfObjectives(problem->getNumberOfObjectives()) {}

Solution::Solution(const Solution* other)
    : problem(other->problem),
      type(other->type),
      variable(type->copyVariables(other->variable)),
      variableArrayLength(other->variableArrayLength),
      numberOfVariables(other->numberOfVariables),
      objective(new double[other->numberOfObjectives]),
      numberOfObjectives(other->numberOfObjectives),
      fitness(other->fitness),
      marked(other->marked),
      rank(other->rank),
      overallConstraintViolation(other->overallConstraintViolation),
      numberOfViolatedConstraints(other->numberOfViolatedConstraints),
      location(other->location),
      kDistance(other->kDistance),
      crowdingDistance(other->crowdingDistance),
      distanceToSolutionSet(other->distanceToSolutionSet) {
  std::copy(other->objective, other->objective + numberOfObjectives, objective);
}

Solution::~Solution() {
  for (int i = 0; i < variableArrayLength; ++i) delete variable[i];
  delete[] variable;
  delete[] objective;
}

void Solution::setObjective(int i, double value) {
  if (i < 0 || i >= numberOfObjectives) {
    KernelException::raise("Solution::setObjective: objective index out of range: " +
                           std::to_string(i));
  }
  objective[i] = value;
}

double Solution::getObjective(int i) const {
  if (i < 0 || i >= numberOfObjectives) {
    KernelException::raise("Solution::getObjective: objective index out of range: " +
                           std::to_string(i));
  }
  return objective[i];
}

double Solution::getAggregativeValue() const {
  double sum = 0.0;
  for (int i = 0; i < numberOfObjectives; ++i) sum += objective[i];
  return sum;
}

std::string Solution::toString() const {
  std::ostringstream out;
  for (int i = 0; i < variableArrayLength; ++i) out << variable[i]->toString() << " ";
  out << " | ";
  for (int i = 0; i < numberOfObjectives; ++i) out << objective[i] << " ";
  return out.str();
}
