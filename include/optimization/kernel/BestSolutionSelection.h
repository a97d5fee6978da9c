#pragma once

#include "optimization/kernel/Operator.h"

// Picks the best member of a SolutionSet under the comparator of parameter "comparator"
// (Comparator*); the first of equals wins.
class BestSolutionSelection : public Selection {
 public:
  explicit BestSolutionSelection(const std::map<std::string, void*>& parameters);

  // A new int (delete by the caller) with the best index of the SolutionSet*; null for an empty
  // set.
  void* execute(void* object) override;
};
