#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "optimization/kernel/RandomGenerator.h"
#include "optimization/kernel/SMPSO.h"
#include "optimization/kernel/SwarmTestSupport.h"

namespace {

class SMPSOOnZdt : public ::testing::TestWithParam<Zdt::Kind> {};

TEST_P(SMPSOOnZdt, ReachesTheTrueFrontsHypervolumeWithinTwoPercent) {
  Zdt problem(GetParam(), 30);
  std::unique_ptr<SolutionSet> front = runOnZdt<SMPSO>(problem, 1234);
  const std::pair<double, double> reference{1.0, 1.0};
  const double reached = hypervolume2d(*front, reference);
  const double truth = trueFrontHypervolume(GetParam(), reference);
  EXPECT_GT(reached, 0.98 * truth) << "reached " << reached << " of " << truth;
  EXPECT_LE(front->size(), 100);
  EXPECT_TRUE(mutuallyNonDominated(*front));
  EXPECT_EQ(problem.evaluations, 100L * (1 + 250));
}

INSTANTIATE_TEST_SUITE_P(Zdt123, SMPSOOnZdt,
                         ::testing::Values(Zdt::Kind::kZdt1, Zdt::Kind::kZdt2, Zdt::Kind::kZdt3));

TEST(SMPSO, SameSeedSameFrontBitForBit) {
  Zdt first(Zdt::Kind::kZdt1, 10);
  Zdt second(Zdt::Kind::kZdt1, 10);
  SwarmSetup setup(20, 15, 30, 0.1);
  std::unique_ptr<SolutionSet> a = runSwarm<SMPSO>(&first, setup, 555);
  std::unique_ptr<SolutionSet> b = runSwarm<SMPSO>(&second, setup, 555);
  EXPECT_TRUE(identicalSets(*a, *b));
  std::unique_ptr<SolutionSet> c = runSwarm<SMPSO>(&first, setup, 556);
  EXPECT_FALSE(identicalSets(*a, *c));
}

// One generation of two particles on the line, derived by hand from the generator's draws.
TEST(SMPSO, OneGenerationFollowsTheDrawsByHand) {
  for (int seed : {3, 10, 29, 400, 1234}) {
    SCOPED_TRACE(seed);
    LineProblem problem;
    SwarmSetup setup(2, 2, 1, 0.0);
    std::unique_ptr<SolutionSet> result = runSwarm<SMPSO>(&problem, setup, seed);

    RandomGenerator twin(PseudoRandom::seedFor(seed));
    double x[2] = {twin.rndreal(0.0, 1.0), twin.rndreal(0.0, 1.0)};
    const double start[2] = {x[0], x[1]};
    // Two distinct points: both leaders, both at the largest crowding distance, so every
    // tournament keeps its first pick.
    ASSERT_NE(x[0], x[1]);
    double speed[2] = {0.0, 0.0};
    for (int i = 0; i < 2; ++i) {
      const int a = twin.rnd(0, 1);
      twin.rnd(0, 1);
      const double leader = start[a];
      const double r1 = twin.rndreal(0.0, 1.0);
      const double r2 = twin.rndreal(0.0, 1.0);
      const double c1 = twin.rndreal(1.5, 2.5);
      const double c2 = twin.rndreal(1.5, 2.5);
      twin.rndreal(0.1, 0.1);  // the inertia draw that is thrown away
      const double phi = c1 + c2;
      const double chi = phi > 4 ? 2.0 / (2.0 - phi - std::sqrt(phi * phi - 4.0 * phi)) : 1.0;
      const double v = chi * (0.1 * 0.0 + c1 * r1 * (start[i] - x[i]) + c2 * r2 * (leader - x[i]));
      speed[i] = std::max(-0.5, std::min(0.5, v));
    }
    for (int i = 0; i < 2; ++i) x[i] = std::max(0.0, std::min(1.0, x[i] + speed[i]));
    twin.randomperc();  // polynomial mutation of particle 0 with probability 0: one draw

    // Four points on one line; an archive of two keeps the extremes.
    const std::vector<double> all = {start[0], start[1], x[0], x[1]};
    const std::vector<double> expected = {*std::min_element(all.begin(), all.end()),
                                          *std::max_element(all.begin(), all.end())};
    EXPECT_EQ(sortedFirstVariables(*result), expected);
    EXPECT_EQ(PseudoRandom::randDouble(), twin.randomperc()) << "number of draws";
  }
}

TEST(SMPSO, ConstrictionTurnsNegativeJustAboveFour) {
  LineProblem problem;
  SMPSO smpso(&problem);
  EXPECT_EQ(smpso.constrictionCoefficient(2.0, 2.0), 1.0);
  EXPECT_EQ(smpso.constrictionCoefficient(1.5, 1.5), 1.0);
  EXPECT_LT(smpso.constrictionCoefficient(2.0, 2.0 + 1e-9), -0.999);
  // phi = 5: 2 / (2 - 5 - sqrt(5)) = -0.381966...
  EXPECT_NEAR(smpso.constrictionCoefficient(2.5, 2.5), -0.3819660112501051, 1e-15);
  EXPECT_EQ(smpso.inertiaWeight(3, 10, 0.7, 0.1), 0.7);
}

TEST(SMPSO, SpeedIsBoundedByHalfTheRange) {
  LineProblem problem;
  SMPSO smpso(&problem);
  const double deltaMax[] = {0.5, 2.0};
  const double deltaMin[] = {-0.5, -2.0};
  struct Row {
    double v;
    int j;
    double bounded;
  };
  const Row rows[] = {{0.7, 0, 0.5},   {-0.7, 0, -0.5}, {0.3, 0, 0.3},
                      {-0.5, 0, -0.5}, {0.7, 1, 0.7},   {-3.0, 1, -2.0}};
  for (const Row& row : rows) {
    EXPECT_EQ(smpso.velocityConstriction(row.v, deltaMax, deltaMin, row.j, 0), row.bounded);
  }
}

TEST(SMPSO, AnArchiveOfOneReturnsOneLeader) {
  Zdt problem(Zdt::Kind::kZdt1, 5);
  SwarmSetup setup(10, 1, 20, 0.2);
  std::unique_ptr<SolutionSet> result = runSwarm<SMPSO>(&problem, setup, 8);
  ASSERT_EQ(result->size(), 1);
  EXPECT_EQ(result->get(0)->getCrowdingDistance(), 1.7976931348623157e308);
}

TEST(SMPSO, AccelerationKeysOfC1ReadTheOtherWayRound) {
  // C1 in [value of "C1Max", value of "C1Min"] and C2 in [value of "C2Min", value of "C2Max"]:
  // pinning C1 with "C1Min" = "C1Max" = 2 and C2 with "C2Min" = "C2Max" = 2 gives phi = 4 and no
  // constriction. Pinning the usual way round, C1Min 1.5 and C1Max 2.5 reversed against the
  // defaults, changes the draws of C1 (2.5 - u instead of 1.5 + u) and so the run.
  Zdt problem(Zdt::Kind::kZdt1, 5);
  SwarmSetup setup(10, 10, 10, 0.2);
  std::unique_ptr<SolutionSet> defaults = runSwarm<SMPSO>(&problem, setup, 4);

  PseudoRandom::setSeed(4);
  SMPSO swapped(&problem);
  setup.configure(swapped);
  double low = 1.5;
  double high = 2.5;
  swapped.setInputParameter("C1Min", &low);
  swapped.setInputParameter("C1Max", &high);
  std::unique_ptr<SolutionSet> usual(swapped.execute());
  EXPECT_FALSE(identicalSets(*defaults, *usual));

  PseudoRandom::setSeed(4);
  SMPSO mirrored(&problem);
  setup.configure(mirrored);
  mirrored.setInputParameter("C1Min", &high);
  mirrored.setInputParameter("C1Max", &low);
  mirrored.setInputParameter("C2Max", &high);
  mirrored.setInputParameter("C2Min", &low);
  std::unique_ptr<SolutionSet> same(mirrored.execute());
  EXPECT_TRUE(identicalSets(*defaults, *same));
}

}  // namespace
