#include "machinelearning/MinimalStandardGenerator.h"

#include <utility>

namespace {

constexpr unsigned long kModulus = 2147483647UL;

std::minstd_rand::result_type validSeed(unsigned long seed) {
  const unsigned long reduced = seed % kModulus;
  return static_cast<std::minstd_rand::result_type>(reduced == 0 ? 1 : reduced);
}

}  // namespace

MinimalStandardGenerator::MinimalStandardGenerator(unsigned long seed) : engine(validSeed(seed)) {}

uint32_t MinimalStandardGenerator::indexBelow(uint32_t m) {
  // Outputs run over 1 .. 2147483646, so e - 1 falls in [0, 2147483646).
  const uint64_t e = engine();
  return static_cast<uint32_t>((e - 1) * m / (kModulus - 1));
}

void MinimalStandardGenerator::shuffle(std::vector<uint32_t>& values) {
  for (std::size_t i = values.size(); i > 1; --i) {
    std::swap(values[i - 1], values[indexBelow(static_cast<uint32_t>(i))]);
  }
}
