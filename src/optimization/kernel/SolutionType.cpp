#include "optimization/kernel/SolutionType.h"

#include <vector>

#include "optimization/kernel/ArrayReal.h"
#include "optimization/kernel/BinaryReal.h"
#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/Problem.h"
#include "optimization/kernel/Real.h"

Variable** SolutionType::copyVariables(Variable** variables) {
  const int n = variableArrayLength();
  Variable** copies = new Variable*[n];
  for (int i = 0; i < n; ++i) copies[i] = variables[i]->deepCopy();
  return copies;
}

int SolutionType::variableArrayLength() const { return problem->getNumberOfVariables(); }

Variable** RealSolutionType::createVariables() {
  const int n = problem->getNumberOfVariables();
  Variable** variables = new Variable*[n];
  for (int i = 0; i < n; ++i) {
    variables[i] = new Real(problem->getLowerLimit(i), problem->getUpperLimit(i));
  }
  return variables;
}

Variable** BinaryRealSolutionType::createVariables() {
  const int n = problem->getNumberOfVariables();
  if (problem->getPrecision().empty()) problem->setPrecision(std::vector<int>(n, 30));
  Variable** variables = new Variable*[n];
  for (int i = 0; i < n; ++i) {
    variables[i] = new BinaryReal(problem->getPrecision(i), problem->getLowerLimit(i),
                                  problem->getUpperLimit(i));
  }
  return variables;
}

Variable** ArrayRealSolutionType::createVariables() {
  if (problem->getSolutionType() == nullptr) {
    KernelException::raise("Error grave: Impossible to reserve memory for variable type");
  }
  Variable** variables = new Variable*[1];
  variables[0] = new ArrayReal(problem->getNumberOfVariables(), problem);
  return variables;
}

Variable** ArrayRealSolutionType::copyVariables(Variable** variables) {
  Variable** copies = new Variable*[1];
  copies[0] = variables[0]->deepCopy();
  return copies;
}
