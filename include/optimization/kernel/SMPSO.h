#pragma once

#include "optimization/kernel/Algorithm.h"

class Comparator;
class CrowdingArchive;
class Distance;
class Solution;

// Multi-objective swarm with speed constriction. Each particle follows a leader picked from a
// bounded crowding archive by a binary tournament on crowding distance. Per particle and
// generation the draws are, in order: two leader indices, r1, r2, C1, C2 and one inertia draw
// whose value is discarded (W is always WMax). With phi = C1 + C2 above 4 the constriction
// 2 / (2 - phi - sqrt(phi^2 - 4 phi)) is negative, so the particle moves against its attractors;
// at or below 4 it is 1. Speeds are bounded by half each variable's range, a particle crossing a
// limit is put on it with its speed times ChVel1 or ChVel2 (-1 by default), and every sixth
// particle (index multiple of 6) is mutated by operator "mutation".
//
// Inputs: "swarmSize", "archiveSize", "maxIterations" (int*, required); optional doubles
// "r1Max", "r1Min", "r2Max", "r2Min", "C1Min", "C1Max", "C2Max", "C2Min", "WMax", "WMin", "ChVel1",
// "ChVel2". C1 is drawn in [value of "C1Max", value of "C1Min"] (defaults 1.5 and 2.5) and C2 in
// [value of "C2Min", value of "C2Max"] (defaults 1.5 and 2.5): the interval is the same whichever
// bound is larger, but the two keys of C1 are read the other way round from those of C2.
class SMPSO : public Algorithm {
 public:
  explicit SMPSO(Problem* problem);
  ~SMPSO() override;

  // A new set with copies of the final archive in archive order. A missing or non-positive size,
  // a missing "maxIterations" or a missing operator "mutation" prints the fault and throws
  // KernelException; an exception from Problem::evaluate passes through.
  SolutionSet* execute() override;

  void initParams();
  void setAlgParams();
  void deleteParams();
  // wma: the inertia does not decrease with the iterations.
  double inertiaWeight(int iter, int miter, double wma, double wmi) const;
  double constrictionCoefficient(double c1, double c2) const;
  double velocityConstriction(double v, const double* deltaMax, const double* deltaMin,
                              int variableIndex, int particleIndex) const;
  void computeSpeed(int iter, int miter);
  void computeNewPositions();
  void mopsoMutation(int iter, int miter);

 private:
  void offerToLeaders(Solution* particle);

  int swarmSize = 0;
  int archiveSize = 0;
  int maxIterations = 0;
  int iteration = 0;
  SolutionSet* particles = nullptr;
  Solution** best = nullptr;
  CrowdingArchive* leaders = nullptr;
  double** speed = nullptr;
  Comparator* dominance = nullptr;
  Comparator* crowdingDistanceComparator = nullptr;
  Distance* distance = nullptr;
  Operator* polynomialMutation = nullptr;
  double r1Max = 1.0;
  double r1Min = 0.0;
  double r2Max = 1.0;
  double r2Min = 0.0;
  double c1FirstBound = 2.5;   // key "C1Min"
  double c1SecondBound = 1.5;  // key "C1Max"
  double c2FirstBound = 2.5;   // key "C2Max"
  double c2SecondBound = 1.5;  // key "C2Min"
  double WMax = 0.1;
  double WMin = 0.1;
  double ChVel1 = -1.0;
  double ChVel2 = -1.0;
  double* deltaMax = nullptr;
  double* deltaMin = nullptr;
  int allocatedParticles = 0;  // rows of best and speed to free
};
