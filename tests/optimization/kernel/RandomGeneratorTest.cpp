#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/RandomGenerator.h"

namespace {

// The generator re-derived by hand from its description, step by step, without the kernel:
// a table of 55 lagged values filled by the warm-up, refreshed by the two subtraction sweeps, and
// read from index 1 on.
struct HandGenerator {
  std::vector<double> lag = std::vector<double>(55, 0.0);
  int index = 0;

  explicit HandGenerator(double seed) {
    lag[54] = seed;
    double next = 1e-9;
    double previous = seed;
    for (int j = 1; j <= 54; ++j) {
      const int position = (21 * j) % 54;
      lag[position] = next;
      next = previous - next;
      if (next < 0) next = next + 1.0;
      previous = lag[position];
    }
    sweep();
    sweep();
    sweep();
    index = 0;
  }
  void sweep() {
    for (int j = 0; j <= 23; ++j) {
      lag[j] = lag[j] - lag[j + 31];
      if (lag[j] < 0) lag[j] = lag[j] + 1.0;
    }
    for (int j = 24; j <= 54; ++j) {
      lag[j] = lag[j] - lag[j - 24];
      if (lag[j] < 0) lag[j] = lag[j] + 1.0;
    }
  }
  double next() {
    index = index + 1;
    if (index == 55) {
      index = 1;
      sweep();
    }
    return lag[index];
  }
};

std::vector<double> handSequence(double seed, int count) {
  HandGenerator hand(seed);
  std::vector<double> values;
  for (int i = 0; i < count; ++i) values.push_back(hand.next());
  return values;
}

class RandomGeneratorSeeds : public ::testing::TestWithParam<double> {};

TEST_P(RandomGeneratorSeeds, FirstTwentyValuesFollowTheWarmUpAndTheSweeps) {
  const std::vector<double> expected = handSequence(GetParam(), 20);
  RandomGenerator generator(GetParam());
  for (int i = 0; i < 20; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(generator.randomperc(), expected[i]);
  }
}

TEST_P(RandomGeneratorSeeds, ValuesAcrossSeveralRefreshesStayOnTheHandSequence) {
  const std::vector<double> expected = handSequence(GetParam(), 500);
  RandomGenerator generator(GetParam());
  for (int i = 0; i < 500; ++i) {
    const double value = generator.randomperc();
    ASSERT_EQ(value, expected[i]) << "draw " << i;
    ASSERT_GE(value, 0.0);
    ASSERT_LT(value, 1.0);
  }
}

TEST_P(RandomGeneratorSeeds, RandomizeRestartsTheSequenceFromTheStoredSeed) {
  RandomGenerator generator(GetParam());
  for (int i = 0; i < 77; ++i) generator.randomperc();
  generator.randomize();
  const std::vector<double> expected = handSequence(GetParam(), 20);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(generator.randomperc(), expected[i]);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGeneratorSeeds, ::testing::Values(0.5, 1234 / 32767.0));

TEST(RandomGenerator, SeedThroughPseudoRandomIsTheSameSequence) {
  PseudoRandom::setSeed(1234);
  const std::vector<double> expected = handSequence(1234 / 32767.0, 20);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(PseudoRandom::randDouble(), expected[i]);
}

TEST(RandomGenerator, SettingTheSeedAgainRestartsTheRun) {
  PseudoRandom::setSeed(99);
  std::vector<double> first;
  for (int i = 0; i < 10; ++i) first.push_back(PseudoRandom::randDouble());
  PseudoRandom::setSeed(99);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(PseudoRandom::randDouble(), first[i]);
}

TEST(RandomGenerator, SeedOfNIsNModulo32768Over32767) {
  struct Case {
    long long n;
    double seed;
  };
  const Case cases[] = {{0, 0.0},      {1234, 1234 / 32767.0},         {32767, 1.0},
                        {32768, 0.0},  {40000, 7232 / 32767.0},        {-1, 1.0},
                        {-32768, 0.0}, {4294967296LL + 5, 5 / 32767.0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.n);
    EXPECT_EQ(PseudoRandom::seedFor(c.n), c.seed);
  }
}

TEST(RandomGenerator, ClockSeedLiesInTheUnitInterval) {
  RandomGenerator generator;
  EXPECT_GE(generator.getSeed(), 0.0);
  EXPECT_LE(generator.getSeed(), 1.0);
  const std::vector<double> expected = handSequence(generator.getSeed(), 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(generator.randomperc(), expected[i]);
}

TEST(RandomGenerator, RndOnItsEdges) {
  const std::vector<double> u = handSequence(0.5, 3);
  struct Case {
    int low;
    int high;
    int expected;
    int drawsMade;
  };
  // trunc(u * (high - low + 1)) + low, or low without a draw when low is not below high.
  const Case cases[] = {
      {3, 3, 3, 0},
      {5, 2, 5, 0},
      {0, 9, static_cast<int>(u[0] * 10) + 0, 1},
      {-3, 3, static_cast<int>(u[0] * 7) - 3, 1},
      {0, 1, static_cast<int>(u[0] * 2), 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.low << ".." << c.high);
    RandomGenerator generator(0.5);
    EXPECT_EQ(generator.rnd(c.low, c.high), c.expected);
    EXPECT_EQ(generator.randomperc(), u[c.drawsMade]);
  }
}

TEST(RandomGenerator, RndCoversBothEndsAndNothingOutside) {
  RandomGenerator generator(0.25);
  std::vector<int> hits(5, 0);
  for (int i = 0; i < 20000; ++i) {
    const int value = generator.rnd(10, 14);
    ASSERT_GE(value, 10);
    ASSERT_LE(value, 14);
    ++hits[value - 10];
  }
  for (int hit : hits) EXPECT_GT(hit, 3000);
}

TEST(RandomGenerator, RndrealIsAffineInTheDraw) {
  const std::vector<double> u = handSequence(0.5, 3);
  RandomGenerator generator(0.5);
  EXPECT_EQ(generator.rndreal(2.0, 5.0), 3.0 * u[0] + 2.0);
  // Reversed bounds are not refused: the value lies in (2, 5].
  EXPECT_EQ(generator.rndreal(5.0, 2.0), -3.0 * u[1] + 5.0);
  // Equal bounds give the bound but still consume a draw.
  EXPECT_EQ(generator.rndreal(1.0, 1.0), 1.0);
  EXPECT_EQ(generator.randomperc(), handSequence(0.5, 4)[3]);
}

TEST(PseudoRandom, IntegerAndRealDrawsAreTheGeneratorsOwn) {
  PseudoRandom::setSeed(7);
  const std::vector<double> u = handSequence(7 / 32767.0, 3);
  EXPECT_EQ(PseudoRandom::randDouble(-1.0, 3.0), 4.0 * u[0] - 1.0);
  EXPECT_EQ(PseudoRandom::randInt(0, 99), static_cast<int>(u[1] * 100));
  EXPECT_EQ(PseudoRandom::randDouble(), u[2]);
}

// The polar method by hand: u and v in (-1, 1) as 2p - 1, redrawn while u^2 + v^2 >= 1.
std::vector<double> handNormals(double seed, int count, double mean, double deviation) {
  HandGenerator hand(seed);
  std::vector<double> values;
  for (int k = 0; k < count; ++k) {
    double u = 0.0;
    double s = 2.0;
    while (s >= 1.0) {
      u = 2.0 * hand.next() - 1.0;
      const double v = 2.0 * hand.next() - 1.0;
      s = u * u + v * v;
    }
    values.push_back(mean + deviation * u * std::sqrt(-2.0 * std::log(s) / s));
  }
  return values;
}

TEST(PseudoRandom, NormalDrawsFollowThePolarMethod) {
  PseudoRandom::setSeed(31);
  const std::vector<double> expected = handNormals(31 / 32767.0, 50, 1.5, 0.5);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(PseudoRandom::randNormal(1.5, 0.5), expected[i]);
}

TEST(PseudoRandom, NormalMeanAndDeviationOverAHundredThousandDraws) {
  PseudoRandom::setSeed(42);
  const int n = 100000;
  double sum = 0.0;
  double sumOfSquares = 0.0;
  for (int i = 0; i < n; ++i) {
    const double x = PseudoRandom::randNormal(10.0, 3.0);
    sum += x;
    sumOfSquares += x * x;
  }
  const double mean = sum / n;
  const double deviation = std::sqrt(sumOfSquares / n - mean * mean);
  // Standard errors: 3 / sqrt(n) = 0.0095 for the mean, 3 / sqrt(2n) = 0.0067 for the deviation.
  EXPECT_NEAR(mean, 10.0, 0.04);
  EXPECT_NEAR(deviation, 3.0, 0.03);
}

TEST(PseudoRandom, SpherePointIsANormalDirectionAtAUniformRadius) {
  const int dimension = 6;
  PseudoRandom::setSeed(5);
  std::vector<double> normals;
  for (int i = 0; i < dimension; ++i) normals.push_back(PseudoRandom::randNormal(0.0, 1.0));
  const double radius = PseudoRandom::randDouble();
  double norm = 0.0;
  for (double x : normals) norm += x * x;
  norm = std::sqrt(norm);

  PseudoRandom::setSeed(5);
  double* point = PseudoRandom::randSphere(dimension);
  double length = 0.0;
  for (int i = 0; i < dimension; ++i) {
    EXPECT_DOUBLE_EQ(point[i], normals[i] * radius / norm);
    length += point[i] * point[i];
  }
  EXPECT_NEAR(std::sqrt(length), radius, 1e-12);
  delete[] point;
}

}  // namespace
