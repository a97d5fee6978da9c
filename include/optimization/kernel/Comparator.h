#pragma once

#include "optimization/kernel/Distance.h"

// Orders two solutions: compare(a, b) is -1 when a comes first (is better), 1 when b does, 0 when
// neither. The arguments are Solution pointers. Unless stated, a null a gives 1 and a null b -1,
// so that a missing solution always comes last.
class Comparator {
 public:
  virtual ~Comparator() = default;
  virtual int compare(void* a, void* b) = 0;
};

// Ascending on one objective; descending reverses the sign.
class ObjectiveComparator : public Comparator {
 public:
  explicit ObjectiveComparator(int objective, bool descending = false)
      : objective(objective), descending(descending) {}
  int compare(void* a, void* b) override;

 private:
  int objective;
  bool descending;
};

// Constraint violations are non-positive. Both violating: the smaller violation first; a feasible
// one before a violating one; otherwise 0. No null test.
class OverallConstraintViolationComparator : public Comparator {
 public:
  int compare(void* a, void* b) override;
};

// Pareto dominance for minimisation, after the constraint comparator when the violations differ
// and either is negative.
class DominanceComparator : public Comparator {
 public:
  int compare(void* a, void* b) override;

 private:
  OverallConstraintViolationComparator violation;
};

// Dominance with a relative tolerance eta on a's objectives: a's value is divided by 1 + eta
// before it is compared.
class EpsilonDominanceComparator : public Comparator {
 public:
  explicit EpsilonDominanceComparator(double eta) : eta(eta) {}
  int compare(void* a, void* b) override;

 private:
  double eta;
  OverallConstraintViolationComparator violation;
};

// 0 for identical objective vectors. Otherwise -1 when a is lower in any objective, else 1: a
// mixed pair gives -1, unlike dominance.
class EqualSolutions : public Comparator {
 public:
  int compare(void* a, void* b) override;
};

// The greater crowding distance first.
class CrowdingDistanceComparator : public Comparator {
 public:
  int compare(void* a, void* b) override;
};

// 0 for solutions closer than 1e-10 in variable space, otherwise -1 (also for different numbers
// of variables). No null test.
class SolutionComparator : public Comparator {
 public:
  int compare(void* a, void* b) override;

 private:
  Distance distance;
};
