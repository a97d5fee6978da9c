#pragma once

#include "optimization/kernel/SolutionSet.h"

// A solution set that keeps the good solutions an algorithm has met, of at most maxSize members.
class Archive : public SolutionSet {
 public:
  explicit Archive(int maxSize) : SolutionSet(maxSize) {}
};
