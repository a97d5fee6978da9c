#pragma once

#include <string>

// The range, m³/s, in which an optimiser chooses a release of an optimisable rule, with the checks
// of its setters. Failures name owner, the class of the rule that holds the range:
// std::invalid_argument "<owner>::setRelease(): the lowerRelease is a negative value" (likewise
// "upperRelease"), and, when the lower bound exceeds the upper one by more than 1e-6,
// "<owner>::setLowerRelease: The value of upperRelease must be greater than lowerRelease" from
// setLower, the same with "setUpperRelease" from setUpper and set. Nothing changes on a failure.
class ReleaseBounds {
 public:
  explicit ReleaseBounds(const char* owner) : owner(owner) {}

  double getLower() const { return lower; }
  double getUpper() const { return upper; }
  void setLower(double value);
  void setUpper(double value);
  void set(double lowerValue, double upperValue);
  // The release that value, in [0, 1], stands for: (upper - lower) * value + lower, m³/s.
  double scaled(double value) const { return (upper - lower) * value + lower; }

 private:
  void checkNotNegative(double value, const char* bound) const;
  void checkOrder(double lowerValue, double upperValue, const char* setter) const;

  const char* owner;
  double lower = 0.0;  // m³/s
  double upper = 0.0;  // m³/s
};
