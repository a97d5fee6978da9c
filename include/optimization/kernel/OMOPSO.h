#pragma once

#include "optimization/kernel/Algorithm.h"

class Comparator;
class CrowdingArchive;
class Distance;
class NonDominatedSolutionList;
class Solution;

// Multi-objective swarm with random coefficients and mutation of two particles in three. Each
// particle follows a leader picked from a bounded crowding archive by a binary tournament on
// crowding distance; per particle and generation the draws are, in order: two leader indices,
// r1, r2, C1 and C2 in [1.5, 2.0) and W in [0.1, 0.5). The speed is not constricted or bounded.
// A particle crossing a limit is reflected to a random point between its old position and the
// limit, and its speed is negated. Particles with index mod 3 = 0 get operator
// "nonUniformMutation" (told the current iteration), those with index mod 3 = 1
// "uniformMutation". An epsilon-dominance archive (eta 0.0075) is kept beside the leaders but not
// returned.
//
// Inputs: "swarmSize", "archiveSize", "maxIterations" (int*), all required; both operators are
// required too.
class OMOPSO : public Algorithm {
 public:
  explicit OMOPSO(Problem* problem);
  ~OMOPSO() override;

  // A new set with copies of the final leaders in archive order. A missing or non-positive size,
  // a missing "maxIterations" or a missing operator prints the fault and throws KernelException;
  // an exception from Problem::evaluate passes through.
  SolutionSet* execute() override;

  void initParams();
  void deleteParams();
  void computeSpeed();
  void computeNewPositions();
  void mopsoMutation(int actualIteration, int totalIterations);

 private:
  void offerToArchives(Solution* particle);

  int swarmSize = 0;
  int archiveSize = 0;
  int maxIterations = 0;
  int iteration = 0;
  SolutionSet* particles = nullptr;
  Solution** best = nullptr;
  CrowdingArchive* leaders = nullptr;
  NonDominatedSolutionList* eArchive = nullptr;
  double** speed = nullptr;
  Comparator* dominance = nullptr;
  Comparator* crowdingDistanceComparator = nullptr;
  Distance* distance = nullptr;
  Operator* uniformMutation = nullptr;
  Operator* nonUniformMutation = nullptr;
  double eta = 0.0075;
  Comparator* epsilonDominance = nullptr;  // the comparator of eArchive
  int allocatedParticles = 0;              // rows of best and speed to free
};
