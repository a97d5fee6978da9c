#include "optimization/kernel/Comparator.h"

#include "optimization/kernel/Solution.h"

namespace {
Solution* asSolution(void* pointer) { return static_cast<Solution*>(pointer); }
}  // namespace

int ObjectiveComparator::compare(void* a, void* b) {
  if (a == nullptr) return 1;
  if (b == nullptr) return -1;
  const double valueA = asSolution(a)->getObjective(objective);
  const double valueB = asSolution(b)->getObjective(objective);
  int order = 0;
  if (valueA < valueB) {
    order = -1;
  } else if (valueA > valueB) {
    order = 1;
  }
  return descending ? -order : order;
}

int OverallConstraintViolationComparator::compare(void* a, void* b) {
  const double violationA = asSolution(a)->getOverallConstraintViolation();
  const double violationB = asSolution(b)->getOverallConstraintViolation();
  if (violationA < 0 && violationB < 0) {
    if (violationA > violationB) return -1;
    if (violationA < violationB) return 1;
    return 0;
  }
  if (violationA == 0 && violationB < 0) return -1;
  if (violationA < 0 && violationB == 0) return 1;
  return 0;
}

int DominanceComparator::compare(void* a, void* b) {
  if (a == nullptr) return 1;
  if (b == nullptr) return -1;
  Solution* solutionA = asSolution(a);
  Solution* solutionB = asSolution(b);
  const double violationA = solutionA->getOverallConstraintViolation();
  const double violationB = solutionB->getOverallConstraintViolation();
  if (violationA != violationB && (violationA < 0 || violationB < 0)) {
    return violation.compare(a, b);
  }
  bool lowerSomewhere = false;
  bool higherSomewhere = false;
  for (int i = 0; i < solutionA->getNumberOfObjectives(); ++i) {
    const double valueA = solutionA->getObjective(i);
    const double valueB = solutionB->getObjective(i);
    if (valueA < valueB) lowerSomewhere = true;
    if (valueA > valueB) higherSomewhere = true;
  }
  if (lowerSomewhere == higherSomewhere) return 0;
  return lowerSomewhere ? -1 : 1;
}

int EpsilonDominanceComparator::compare(void* a, void* b) {
  if (a == nullptr) return 1;
  if (b == nullptr) return -1;
  const int byViolation = violation.compare(a, b);
  if (byViolation != 0) return byViolation;
  Solution* solutionA = asSolution(a);
  Solution* solutionB = asSolution(b);
  bool favoursA = false;
  bool favoursB = false;
  for (int i = 0; i < solutionA->getNumberOfObjectives(); ++i) {
    const double valueA = solutionA->getObjective(i) / (eta + 1.0);
    const double valueB = solutionB->getObjective(i);
    if (valueB > valueA) favoursA = true;
    if (valueA > valueB) favoursB = true;
  }
  if (favoursA == favoursB) return 0;
  return favoursA ? -1 : 1;
}

int EqualSolutions::compare(void* a, void* b) {
  if (a == nullptr) return 1;
  if (b == nullptr) return -1;
  Solution* solutionA = asSolution(a);
  Solution* solutionB = asSolution(b);
  bool lowerSomewhere = false;
  bool higherSomewhere = false;
  for (int i = 0; i < solutionA->getNumberOfObjectives(); ++i) {
    const double valueA = solutionA->getObjective(i);
    const double valueB = solutionB->getObjective(i);
    if (valueA < valueB) lowerSomewhere = true;
    if (valueA > valueB) higherSomewhere = true;
  }
  if (!lowerSomewhere && !higherSomewhere) return 0;
  return lowerSomewhere ? -1 : 1;
}

int CrowdingDistanceComparator::compare(void* a, void* b) {
  if (a == nullptr) return 1;
  if (b == nullptr) return -1;
  const double distanceA = asSolution(a)->getCrowdingDistance();
  const double distanceB = asSolution(b)->getCrowdingDistance();
  if (distanceA > distanceB) return -1;
  if (distanceA < distanceB) return 1;
  return 0;
}

int SolutionComparator::compare(void* a, void* b) {
  Solution* solutionA = asSolution(a);
  Solution* solutionB = asSolution(b);
  if (solutionA->getNumberOfVariables() != solutionB->getNumberOfVariables()) return -1;
  if (distance.distanceBetweenSolutions(solutionA, solutionB) < 1e-10) return 0;
  return -1;
}
