#include "optimization/kernel/BinaryReal.h"

#include <cmath>
#include <sstream>

BinaryReal::BinaryReal() : value(0.0), lowerBound(0.0), upperBound(0.0) {}

BinaryReal::BinaryReal(int numberOfBits, double lower, double upper)
    : Binary(numberOfBits), value(0.0), lowerBound(lower), upperBound(upper) {
  decode();
}

BinaryReal::BinaryReal(const BinaryReal* other)
    : Binary(other),
      value(other->value),
      lowerBound(other->lowerBound),
      upperBound(other->upperBound) {}

Variable* BinaryReal::deepCopy() const { return new BinaryReal(this); }

std::string BinaryReal::toString() const {
  std::ostringstream out;
  out << value;
  return out.str();
}

void BinaryReal::decode() {
  double sum = 0.0;
  for (int i = 0; i < numberOfBits; ++i) {
    if (getIth(i)) sum += std::ldexp(1.0, i);
  }
  value = lowerBound + sum * (upperBound - lowerBound) / (std::ldexp(1.0, numberOfBits) - 1.0);
}
