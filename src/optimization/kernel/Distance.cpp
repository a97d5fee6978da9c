#include "optimization/kernel/Distance.h"

#include <cmath>
#include <limits>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/XReal.h"

namespace {
constexpr double kLargest = std::numeric_limits<double>::max();
}  // namespace

void Distance::crowdingDistanceAssignment(SolutionSet* set, int numberOfObjectives) {
  const int size = set->size();
  if (size == 0) return;
  if (size <= 2) {
    for (int i = 0; i < size; ++i) set->get(i)->setCrowdingDistance(kLargest);
    return;
  }
  SolutionSet front(size);
  for (int i = 0; i < size; ++i) front.add(set->get(i));
  for (int i = 0; i < size; ++i) front.get(i)->setCrowdingDistance(0.0);

  for (int objective = 0; objective < numberOfObjectives; ++objective) {
    ObjectiveComparator ascending(objective);
    front.sort(&ascending);
    const double minimum = front.get(0)->getObjective(objective);
    const double maximum = front.get(size - 1)->getObjective(objective);
    front.get(0)->setCrowdingDistance(kLargest);
    front.get(size - 1)->setCrowdingDistance(kLargest);
    for (int j = 1; j < size - 1; ++j) {
      double crowding =
          front.get(j + 1)->getObjective(objective) - front.get(j - 1)->getObjective(objective);
      crowding = crowding / (maximum - minimum);
      front.get(j)->setCrowdingDistance(front.get(j)->getCrowdingDistance() + crowding);
    }
  }
  // The working set shares the members: empty it so that its destructor deletes nothing.
  front.clear();
}

double** Distance::distanceMatrix(SolutionSet* set) {
  const int size = set->size();
  double** matrix = new double*[size];
  for (int i = 0; i < size; ++i) matrix[i] = new double[size];
  for (int i = 0; i < size; ++i) {
    matrix[i][i] = 0.0;
    for (int j = i + 1; j < size; ++j) {
      matrix[i][j] = distanceBetweenObjectives(set->get(i), set->get(j));
      matrix[j][i] = matrix[i][j];
    }
  }
  return matrix;
}

double Distance::distanceBetweenObjectives(Solution* a, Solution* b) {
  double sum = 0.0;
  for (int i = 0; i < a->getNumberOfObjectives(); ++i) {
    const double difference = a->getObjective(i) - b->getObjective(i);
    sum += difference * difference;
  }
  return std::sqrt(sum);
}

double Distance::distanceBetweenSolutions(Solution* a, Solution* b) {
  XReal x(a);
  XReal y(b);
  double sum = 0.0;
  for (int i = 0; i < x.getNumberOfDecisionVariables(); ++i) {
    const double difference = x.getValue(i) - y.getValue(i);
    sum += difference * difference;
  }
  return std::sqrt(sum);
}

double Distance::distanceToSolutionSetInObjectiveSpace(Solution* solution, SolutionSet* set) {
  double least = kLargest;
  for (int i = 0; i < set->size(); ++i) {
    const double d = distanceBetweenObjectives(solution, set->get(i));
    if (d < least) least = d;
  }
  return least;
}

double Distance::distanceToSolutionSetInSolutionSpace(Solution* solution, SolutionSet* set) {
  double least = kLargest;
  for (int i = 0; i < set->size(); ++i) {
    const double d = distanceBetweenSolutions(solution, set->get(i));
    if (d < least) least = d;
  }
  return least;
}
