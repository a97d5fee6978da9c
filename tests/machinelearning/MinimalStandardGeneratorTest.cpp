#include <gtest/gtest.h>

#include <vector>

#include "machinelearning/MinimalStandardGenerator.h"

namespace {

TEST(MinimalStandardGeneratorTest, DrawsWorkedByHand) {
  // Seed 7: outputs 7 * 48271 = 337897, then 337897 * 48271 mod 2147483647 = 1278240558,
  // 449829614, 518142577. An index below 3 is floor((e - 1) * 3 / 2147483646):
  // 337896 * 3 / 2147483646 = 0.0005 -> 0; 1278240557 * 3 / ... = 1.786 -> 1;
  // 449829613 * 3 / ... = 0.628 -> 0; 518142576 * 3 / ... = 0.724 -> 0.
  MinimalStandardGenerator generator(7);
  EXPECT_EQ(0u, generator.indexBelow(3));
  EXPECT_EQ(1u, generator.indexBelow(3));
  EXPECT_EQ(0u, generator.indexBelow(3));
  EXPECT_EQ(0u, generator.indexBelow(3));
}

TEST(MinimalStandardGeneratorTest, ShuffleFromTheLastPositionDown) {
  // Seed 7 again: position 2 swaps with floor(337896 * 3 / 2147483646) = 0, giving {2, 1, 0};
  // position 1 swaps with floor(1278240557 * 2 / 2147483646) = 1, leaving it.
  MinimalStandardGenerator generator(7);
  std::vector<uint32_t> values{0, 1, 2};
  generator.shuffle(values);
  EXPECT_EQ((std::vector<uint32_t>{2, 1, 0}), values);
}

TEST(MinimalStandardGeneratorTest, SeedsReducedModuloTheModulus) {
  // 2147483647 + 7 is seed 7; a seed of 0 or of the modulus itself is seed 1, whose first output
  // is 48271 and whose index below 2147483646 is then 48270.
  MinimalStandardGenerator wrapped(2147483647UL + 7);
  MinimalStandardGenerator seven(7);
  EXPECT_EQ(seven.indexBelow(1000000), wrapped.indexBelow(1000000));
  for (unsigned long seed : {0UL, 2147483647UL}) {
    MinimalStandardGenerator one(seed);
    EXPECT_EQ(48270u, one.indexBelow(2147483646u));
  }
}

}  // namespace
