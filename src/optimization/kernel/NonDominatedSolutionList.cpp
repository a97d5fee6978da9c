#include "optimization/kernel/NonDominatedSolutionList.h"

#include <limits>

#include "optimization/kernel/Solution.h"

NonDominatedSolutionList::NonDominatedSolutionList()
    : SolutionSet(std::numeric_limits<int>::max()), comparator(&dominance) {}

NonDominatedSolutionList::NonDominatedSolutionList(Comparator* comparator)
    : SolutionSet(std::numeric_limits<int>::max()), comparator(comparator) {}

bool NonDominatedSolutionList::add(Solution* solution) {
  int i = 0;
  while (i < size()) {
    Solution* member = solutionsList[i];
    const int flag = comparator->compare(solution, member);
    if (flag == 1) return false;
    if (flag == -1) {
      delete member;
      remove(i);
    } else {
      ++i;
    }
  }
  SolutionSet::add(solution);
  return true;
}
