#pragma once

#include "optimization/kernel/Algorithm.h"

class Comparator;
class Solution;

// Single-objective particle swarm minimising objective 0, with a fixed constricted velocity rule:
//   v = 0.7298437881283576 * (v + 2.05 r1 (personal best - x) + 2.05 r2 (global best - x)),
// one pair r1, r2 per particle and generation. A particle that crosses a limit is put on it and
// keeps its speed (ChVel1 = ChVel2 = 1.0). The swarm is never mutated, and the result is the best
// particle of the last generation, not the best position ever seen.
//
// Inputs: "swarmSize" and "maxIterations" (int*), both required; operator "mutation", optional
// and unused by execute(). One run costs swarmSize * (1 + maxIterations) evaluations. The
// weights, accelerations and speed limits below are kept with their values but the rule does
// not read them.
class PSO : public Algorithm {
 public:
  explicit PSO(Problem* problem);
  ~PSO() override;

  // A new set of capacity 1 with a copy of the last generation's best particle (the lowest index
  // among equals). A missing or non-positive "swarmSize", or a missing "maxIterations", prints
  // the fault and throws KernelException. An exception from Problem::evaluate passes through.
  SolutionSet* execute() override;

  void initParams();
  void deleteParams();
  double inertiaWeight(int iter, int miter, double wma, double wmi) const;
  double constrictionCoefficient(double c1, double c2) const;
  double velocityConstriction(double v, const double* deltaMax, const double* deltaMin,
                              int variableIndex, int particleIndex) const;
  void computeSpeed(int iter, int miter);
  void computeNewPositions();
  // Mutates every particle whose index is a multiple of 6.
  void mopsoMutation(int iter, int miter);

 private:
  static constexpr double kConstriction = 0.7298437881283576;
  static constexpr double kAcceleration = 2.05;

  int swarmSize = 0;
  int maxIterations = 0;
  int iteration = 0;
  SolutionSet* particles = nullptr;
  Solution** best = nullptr;
  Solution* globalBest = nullptr;
  double** speed = nullptr;
  Operator* polynomialMutation = nullptr;
  int evaluations = 0;
  Comparator* comparator;
  Operator* findBestSolution;
  double r1Max = 1.0;
  double r1Min = 0.0;
  double r2Max = 1.0;
  double r2Min = 0.0;
  double ChVel1 = 1.0;
  double ChVel2 = 1.0;
  double* deltaMax = nullptr;
  double* deltaMin = nullptr;
  int allocatedParticles = 0;  // rows of best and speed to free
};
