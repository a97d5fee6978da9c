#pragma once

#include "optimization/kernel/Binary.h"

// A real value in [lower, upper] encoded by n bits: value = lower + S * (upper - lower) / (2^n -
// 1), S the integer of the bits with bit 0 least significant.
class BinaryReal : public Binary {
 public:
  BinaryReal();
  // Random bits as Binary(n), then decoded.
  BinaryReal(int numberOfBits, double lower, double upper);
  explicit BinaryReal(const BinaryReal* other);

  Variable* deepCopy() const override;
  double getValue() const override { return value; }
  // Stores the value without re-encoding the bits.
  void setValue(double newValue) override { value = newValue; }
  double getLowerBound() const override { return lowerBound; }
  double getUpperBound() const override { return upperBound; }
  // The value as a default number stream writes it, like Real.
  std::string toString() const override;
  void decode() override;

  void setLowerBound(double bound) { lowerBound = bound; }
  void setUpperBound(double bound) { upperBound = bound; }

 private:
  double value;
  double lowerBound;
  double upperBound;
};
