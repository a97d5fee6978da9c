#pragma once

#include "optimization/kernel/Variable.h"

// A real variable with its bounds.
class Real : public Variable {
 public:
  // Value 0 and bounds 0.
  Real();
  // Bounds as given and a value drawn uniformly in [lower, upper) from PseudoRandom.
  Real(double lower, double upper);
  // Copies value and bounds of any variable through its accessors.
  explicit Real(const Variable* variable);

  Variable* deepCopy() const override;
  double getValue() const override { return value; }
  void setValue(double newValue) override { value = newValue; }
  double getLowerBound() const override { return lowerBound; }
  double getUpperBound() const override { return upperBound; }
  // The value as a default number stream writes it.
  std::string toString() const override;

  void setLowerBound(double bound) { lowerBound = bound; }
  void setUpperBound(double bound) { upperBound = bound; }

 private:
  double value;
  double lowerBound;
  double upperBound;
};
