#pragma once

#include "optimization/kernel/Archive.h"
#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/Distance.h"

// A bounded archive of mutually non-dominated solutions. When a new solution makes it overflow,
// the most crowded member (smallest crowding distance, the earliest of equals) goes, and that may
// be the new solution itself. While it appends it briefly holds maxSize + 1 members.
class CrowdingArchive : public Archive {
 public:
  CrowdingArchive(int maxSize, int numberOfObjectives);

  // Offers solution; true when kept, and the archive then owns it. Members that solution
  // dominates are deleted on the way, even if solution is refused later in the walk.
  bool add(Solution* solution);

 private:
  int maxSize;
  int objectives;
  DominanceComparator dominance;
  EqualSolutions equals;
  CrowdingDistanceComparator crowdingDistance;
  Distance distance;
};
