#pragma once

#include "optimization/kernel/Operator.h"

class Solution;

// Non-uniform mutation, whose steps shrink as the run advances. Parameters: "probability" and
// "perturbation" (double*, default 0.0), "maxIterations" (int*, default 0) and, read at every
// execute when set, "currentIteration" (int*). At currentIteration = maxIterations a mutated
// variable does not move (for a perturbation above 0).
class NonUniformMutation : public Mutation {
 public:
  explicit NonUniformMutation(const std::map<std::string, void*>& parameters);

  // Mutates the Solution* in place and returns it.
  void* execute(void* object) override;
  void doMutation(double probability, Solution* solution);

 private:
  // y * (1 - r^((1 - current / max)^b)) with r drawn here.
  double delta(double y, double b);

  double probability;
  double perturbation;
  int maxIterations;
  int currentIteration;
};
