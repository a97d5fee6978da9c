#pragma once

#include <cstdint>
#include <random>
#include <vector>

// The draws of a random forest, from std::minstd_rand (x' = 48271 x mod 2147483647), written out
// so that every standard library gives the same draws: an index below m from one output e is
// floor((e - 1) * m / 2147483646), and a shuffle is Fisher-Yates from the last position down, the
// position i swapping with the index below i + 1.
class MinimalStandardGenerator {
 public:
  // Seeded with seed mod 2147483647, or 1 when that is 0.
  explicit MinimalStandardGenerator(unsigned long seed);

  // A uniform integer in 0 .. m - 1, from one output; 0 when m is 0.
  uint32_t indexBelow(uint32_t m);
  void shuffle(std::vector<uint32_t>& values);

 private:
  std::minstd_rand engine;
};
