#pragma once

#include <vector>

#include "optimization/kernel/Variable.h"

class Problem;

// All the real variables of a solution in one array, with the limits of its problem. A bad index
// or an access without index is printed and the call goes on (reads give 0.0, writes do nothing).
class ArrayReal : public Variable {
 public:
  ArrayReal();
  // size values, each (upper_i - lower_i) * u + lower_i with the problem's limits.
  ArrayReal(int size, Problem* problem);
  explicit ArrayReal(const ArrayReal* other);

  Variable* deepCopy() const override;
  double getValue() const override;
  void setValue(double value) override;
  double getLowerBound() const override;
  double getUpperBound() const override;
  // The values separated by blanks.
  std::string toString() const override;

  double getValue(int index) const;
  void setValue(int index, double value);
  double getLowerBound(int index) const;
  double getUpperBound(int index) const;
  int getLength() const { return size; }

 private:
  bool validIndex(int index) const;

  std::vector<double> array;
  Problem* problem;  // not owned
  int size;
};
