#pragma once

class Solution;
class SolutionSet;

// Distances between solutions and the crowding measure of a non-dominated set.
class Distance {
 public:
  // Sets every member's crowding distance: for each objective, after sorting ascending, the two
  // extremes get the largest double and each interior member adds (next - previous) / (max - min).
  // A set of one or two members gets the largest double everywhere. An objective with max = min
  // divides by zero, and the resulting infinities or NaN stay.
  void crowdingDistanceAssignment(SolutionSet* set, int numberOfObjectives);
  // A new size x size matrix (delete[] each row, then the array) of Euclidean distances between
  // objective vectors.
  double** distanceMatrix(SolutionSet* set);
  double distanceBetweenObjectives(Solution* a, Solution* b);
  // Euclidean distance of the decision variables, read as reals.
  double distanceBetweenSolutions(Solution* a, Solution* b);
  // The least distance to any member; the largest double for an empty set.
  double distanceToSolutionSetInObjectiveSpace(Solution* solution, SolutionSet* set);
  double distanceToSolutionSetInSolutionSpace(Solution* solution, SolutionSet* set);
};
