#pragma once

#include <cstdint>
#include <vector>

#include "optimization/kernel/Variable.h"

// A string of bits; bit i lies in word i / 32 at position i % 32. It has no real value (0.0) and
// no bounds: asking for a bound is a kernel fault.
class Binary : public Variable {
 public:
  // No bits; getNumberOfBits() is -1.
  Binary();
  // n bits drawn in index order: a draw below 0.5 sets the bit.
  explicit Binary(int numberOfBits);
  explicit Binary(const Binary* other);

  Variable* deepCopy() const override;
  double getValue() const override { return 0.0; }
  void setValue(double) override {}
  // Throws KernelException: a bit string has no bounds.
  double getLowerBound() const override;
  double getUpperBound() const override;
  // One character '0' or '1' per bit, bit 0 first.
  std::string toString() const override;

  virtual void decode() {}

  int getNumberOfBits() const { return numberOfBits; }
  bool getIth(int bit) const;
  void setIth(int bit, bool set);
  void flip(int bit);
  // Number of positions where the two strings differ (over this string's length).
  int hammingDistance(const Binary* other) const;
  // Number of set bits.
  int cardinality() const;

 protected:
  std::vector<std::uint32_t> bits;
  int numberOfBits;
};
