#pragma once

#include "optimization/kernel/Operator.h"

class Solution;

// Uniform mutation: each variable, with probability "probability" (double*), moves by
// (u - 0.5) * "perturbation" (double*), then is repaired towards its bounds. Both parameters are
// required: a missing one prints "UniformMutation: parameter <name> not set" and throws
// KernelException.
class UniformMutation : public Mutation {
 public:
  explicit UniformMutation(const std::map<std::string, void*>& parameters);

  // Mutates the Solution* in place and returns it.
  void* execute(void* object) override;
  void doMutation(double probability, Solution* solution);

 private:
  double probability;
  double perturbation;
};
