#pragma once

#include <limits>
#include <string>

class Problem;
class SolutionType;
class Variable;

// A candidate of a problem: its variables (owned, made by the problem's solution type), its
// objectives and the bookkeeping that algorithms and archives read. Objectives are unset until
// the problem evaluates the solution.
class Solution {
 public:
  // New random variables from the problem's solution type; every scalar at its start value.
  explicit Solution(Problem* problem);
  // A deep copy of variables and objectives with every scalar.
  explicit Solution(const Solution* other);
  Solution(const Solution&) = delete;
  Solution& operator=(const Solution&) = delete;
  ~Solution();

  // Throw KernelException (after printing the fault) for an index outside the objectives.
  void setObjective(int i, double value);
  double getObjective(int i) const;
  int getNumberOfObjectives() const { return numberOfObjectives; }
  // The plain sum of the objectives.
  double getAggregativeValue() const;

  Variable** getDecisionVariables() const { return variable; }
  // Entries of getDecisionVariables(): one per variable, or one for an array encoding.
  int getVariableArrayLength() const { return variableArrayLength; }
  int getNumberOfVariables() const { return numberOfVariables; }
  SolutionType* getType() const { return type; }
  Problem* getProblem() const { return problem; }

  double getFitness() const { return fitness; }
  void setFitness(double value) { fitness = value; }
  bool isMarked() const { return marked; }
  void setMarked(bool value) { marked = value; }
  int getRank() const { return rank; }
  void setRank(int value) { rank = value; }
  double getOverallConstraintViolation() const { return overallConstraintViolation; }
  void setOverallConstraintViolation(double value) { overallConstraintViolation = value; }
  int getNumberOfViolatedConstraints() const { return numberOfViolatedConstraints; }
  void setNumberOfViolatedConstraints(int value) { numberOfViolatedConstraints = value; }
  int getLocation() const { return location; }
  void setLocation(int value) { location = value; }
  double getKDistance() const { return kDistance; }
  void setKDistance(double value) { kDistance = value; }
  double getCrowdingDistance() const { return crowdingDistance; }
  void setCrowdingDistance(double value) { crowdingDistance = value; }
  double getDistanceToSolutionSet() const { return distanceToSolutionSet; }
  void setDistanceToSolutionSet(double value) { distanceToSolutionSet = value; }

  // Each variable's text and a blank, then " | ", then each objective and a blank.
  std::string toString() const;

 private:
  Problem* problem;    // not owned
  SolutionType* type;  // not owned
  Variable** variable;
  int variableArrayLength;
  int numberOfVariables;
  double* objective;
  int numberOfObjectives;
  double fitness = 0.0;
  bool marked = false;
  int rank = 0;
  double overallConstraintViolation = 0.0;
  int numberOfViolatedConstraints = 0;
  int location = 0;
  double kDistance = 0.0;
  double crowdingDistance = 0.0;
  double distanceToSolutionSet = std::numeric_limits<double>::max();
};
