#pragma once

class ArrayReal;
class Solution;
class SolutionType;

// One real-valued view of a solution whatever its encoding: one variable per index for
// RealSolutionType and BinaryRealSolutionType, the entries of the single ArrayReal for
// ArrayRealSolutionType. The dispatch is on the exact type; with any other type, subclasses
// included, every accessor prints "ERROR GRAVE: solution type <name> invalid" and throws
// KernelException.
class XReal {
 public:
  explicit XReal(Solution* solution);

  double getValue(int i) const;
  void setValue(int i, double value);
  double getLowerBound(int i) const;
  double getUpperBound(int i) const;
  int getNumberOfDecisionVariables() const;
  int size() const;
  Solution* getSolution() const { return solution; }

 private:
  enum class Encoding { kPerVariable, kArray, kInvalid };

  [[noreturn]] void invalidType() const;

  Solution* solution;  // not owned
  SolutionType* type;  // not owned
  Encoding encoding;
  ArrayReal* array;  // the single variable of an array encoding, else null
};
