#pragma once

#include <string>
#include <vector>

class Solution;
class SolutionType;

// What an algorithm optimises: the number of variables, objectives and constraints, the limits of
// every variable and how a solution is evaluated. Every objective is minimised. A subclass fills
// the protected fields in its constructor; the problem owns its solution type.
class Problem {
 public:
  Problem() = default;
  Problem(const Problem&) = delete;
  Problem& operator=(const Problem&) = delete;
  virtual ~Problem();

  // Writes the objectives (and whatever else the problem records) of solution.
  virtual void evaluate(Solution* solution) = 0;
  // Evaluates every solution, by default one after the other. The swarms hand over a whole swarm
  // at once, after every draw that positions it, so a problem whose evaluations are independent
  // may run them side by side.
  virtual void evaluateAll(const std::vector<Solution*>& solutions);
  // Writes the constraint violation of solution; the default has no constraints.
  virtual void evaluateConstraints(Solution* solution);

  int getNumberOfVariables() const { return numberOfVariables; }
  int getNumberOfObjectives() const { return numberOfObjectives; }
  int getNumberOfConstraints() const { return numberOfConstraints; }
  const std::string& getName() const { return problemName; }
  SolutionType* getSolutionType() const { return solutionType; }
  // Takes ownership of type, deleting the previous one.
  void setSolutionType(SolutionType* type);

  // The limits of variable i. Without limits, or with i not below the number of variables, the
  // fault is printed and the slot is still read when it exists; a slot that does not exist
  // throws KernelException.
  double getLowerLimit(int i) const;
  double getUpperLimit(int i) const;
  // Bits per variable of a binary encoding: 30 each unless set.
  const std::vector<int>& getPrecision() const { return precision; }
  int getPrecision(int i) const { return precision[i]; }
  void setPrecision(const std::vector<int>& bits) { precision = bits; }
  // length[i], or 16 without lengths.
  int getLength(int i) const;
  // The sum of the lengths, or 16 per variable.
  int getNumberOfBits() const;

 protected:
  int numberOfVariables = 0;
  int numberOfObjectives = 0;
  int numberOfConstraints = 0;
  std::string problemName;
  SolutionType* solutionType = nullptr;
  std::vector<double> lowerLimit;
  std::vector<double> upperLimit;
  std::vector<int> precision;
  std::vector<int> length;
};
