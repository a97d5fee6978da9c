#include "optimization/kernel/Binary.h"

#include "optimization/kernel/KernelException.h"
#include "optimization/kernel/PseudoRandom.h"

Binary::Binary() : numberOfBits(-1) {}

Binary::Binary(int numberOfBits)
    : bits(static_cast<std::size_t>((numberOfBits + 31) / 32), 0u), numberOfBits(numberOfBits) {
  for (int i = 0; i < numberOfBits; ++i) setIth(i, PseudoRandom::randDouble() < 0.5);
}

Binary::Binary(const Binary* other) : bits(other->bits), numberOfBits(other->numberOfBits) {}

Variable* Binary::deepCopy() const { return new Binary(this); }

double Binary::getLowerBound() const {
  throw KernelException("Binary::getLowerBound(): a string of bits has no bounds");
}

double Binary::getUpperBound() const {
  throw KernelException("Binary::getUpperBound(): a string of bits has no bounds");
}

std::string Binary::toString() const {
  std::string text;
  for (int i = 0; i < numberOfBits; ++i) text += getIth(i) ? '1' : '0';
  return text;
}

bool Binary::getIth(int bit) const { return (bits[bit / 32] >> (bit % 32)) & 1u; }

void Binary::setIth(int bit, bool set) {
  const std::uint32_t mask = 1u << (bit % 32);
  if (set) {
    bits[bit / 32] |= mask;
  } else {
    bits[bit / 32] &= ~mask;
  }
}

void Binary::flip(int bit) { bits[bit / 32] ^= 1u << (bit % 32); }

int Binary::hammingDistance(const Binary* other) const {
  int distance = 0;
  for (int i = 0; i < numberOfBits; ++i) {
    if (getIth(i) != other->getIth(i)) ++distance;
  }
  return distance;
}

int Binary::cardinality() const {
  int count = 0;
  for (int i = 0; i < numberOfBits; ++i) {
    if (getIth(i)) ++count;
  }
  return count;
}
