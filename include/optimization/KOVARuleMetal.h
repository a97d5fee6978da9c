#pragma once

#include <functional>
#include <string>
#include <vector>

#include "optimization/kernel/Problem.h"

// What a rule-optimisation problem is made of: the evaluation of one candidate (a simulation), the
// kernel's solution type by name, and the counts of variables and objectives.
struct KOVARuleMetalParameters {
  std::function<void(Solution*)> evaluate;
  // When set, evaluates a whole swarm at once (the candidates' evaluations are independent).
  std::function<void(const std::vector<Solution*>&)> evaluateAll;
  std::string solutionType;
  int numberOfVariables = 0;
  int numberOfObjectives = 0;
};

// The bridge between the swarms and the water system: every decision variable lies in [0, 1] (each
// optimisable rule scales its own), and evaluating a candidate calls the held function. A solution
// type other than "BinaryReal", "Real" or "ArrayReal" prints "Error: solution type <name> invalid"
// and throws KernelException.
class KOVARuleMetal : public Problem {
 public:
  explicit KOVARuleMetal(const KOVARuleMetalParameters& parameters);

  void evaluate(Solution* solution) override;
  void evaluateAll(const std::vector<Solution*>& solutions) override;

 private:
  std::function<void(Solution*)> evaluation;
  std::function<void(const std::vector<Solution*>&)> swarmEvaluation;
};
