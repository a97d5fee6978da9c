#include "optimization/kernel/CrowdingArchive.h"

#include "optimization/kernel/Solution.h"

CrowdingArchive::CrowdingArchive(int maxSize, int numberOfObjectives)
    : Archive(maxSize), maxSize(maxSize), objectives(numberOfObjectives) {}

bool CrowdingArchive::add(Solution* solution) {
  int i = 0;
  while (i < size()) {
    Solution* member = solutionsList[i];
    const int flag = dominance.compare(solution, member);
    if (flag == 1) return false;
    if (flag == -1) {
      delete member;
      remove(i);
    } else {
      if (equals.compare(member, solution) == 0) return false;
      ++i;
    }
  }
  // The insert without capacity test: the archive may exceed maxSize by one until it prunes.
  SolutionSet::add(size(), solution);
  if (size() <= maxSize) return true;

  distance.crowdingDistanceAssignment(this, objectives);
  const int worst = indexWorst(&crowdingDistance);
  const bool kept = solutionsList[worst] != solution;
  if (kept) delete solutionsList[worst];
  remove(worst);
  return kept;
}
