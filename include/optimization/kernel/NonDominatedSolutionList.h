#pragma once

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/SolutionSet.h"

// An unbounded list of solutions that no member dominates, under Pareto dominance or under a
// comparator given at construction. Equal solutions are both kept.
class NonDominatedSolutionList : public SolutionSet {
 public:
  NonDominatedSolutionList();
  // Uses comparator (not owned; it must outlive the list) in place of Pareto dominance.
  explicit NonDominatedSolutionList(Comparator* comparator);

  // Offers solution; true when kept, and the list then owns it. Members that solution dominates
  // are deleted.
  bool add(Solution* solution);

 private:
  DominanceComparator dominance;
  Comparator* comparator;  // not owned; &dominance by default
  EqualSolutions equals;
};
