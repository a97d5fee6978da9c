#include "optimization/KOVARuleMetal.h"

#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/SolutionType.h"

namespace {

SolutionType* makeSolutionType(const std::string& name, Problem* problem) {
  if (name == "BinaryReal") return new BinaryRealSolutionType(problem);
  if (name == "Real") return new RealSolutionType(problem);
  if (name == "ArrayReal") return new ArrayRealSolutionType(problem);
  KernelException::raise("Error: solution type " + name + " invalid");
}

}  // namespace

KOVARuleMetal::KOVARuleMetal(const KOVARuleMetalParameters& parameters)
    : evaluation(parameters.evaluate), swarmEvaluation(parameters.evaluateAll) {
  numberOfVariables = parameters.numberOfVariables;
  numberOfObjectives = parameters.numberOfObjectives;
  numberOfConstraints = 0;
  problemName = "KOVARule";
  lowerLimit.assign(numberOfVariables, 0.0);
  upperLimit.assign(numberOfVariables, 1.0);
  solutionType = makeSolutionType(parameters.solutionType, this);
}

void KOVARuleMetal::evaluate(Solution* solution) { evaluation(solution); }

void KOVARuleMetal::evaluateAll(const std::vector<Solution*>& solutions) {
  if (swarmEvaluation) {
    swarmEvaluation(solutions);
  } else {
    Problem::evaluateAll(solutions);
  }
}
