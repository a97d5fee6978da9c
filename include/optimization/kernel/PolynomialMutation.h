#pragma once

#include "optimization/kernel/Operator.h"

class Solution;

// Polynomial mutation of real-coded solutions. Parameters: "probability" (double*, default 0.0),
// the chance of each variable to be mutated, and "distributionIndex" (double*, default 20.0).
// The base raised in the perturbation always has the exponent 21; the distribution index acts
// only through the final root 1 / (distributionIndex + 1).
class PolynomialMutation : public Mutation {
 public:
  explicit PolynomialMutation(const std::map<std::string, void*>& parameters);

  // Mutates the Solution* in place and returns it.
  void* execute(void* object) override;
  void doMutation(double probability, Solution* solution);

 private:
  double probability;
  double distributionIndex;
};
