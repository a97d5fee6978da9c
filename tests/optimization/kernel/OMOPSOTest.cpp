#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "optimization/kernel/OMOPSO.h"
#include "optimization/kernel/RandomGenerator.h"
#include "optimization/kernel/SwarmTestSupport.h"

namespace {

// The optimum of ZDT lies on the lower limit of 29 of its variables. OMOPSO never puts a particle
// on a limit: the wall reflects it to a random point short of it, and the uniform mutation's
// repair sends a variable pushed below 0 back into [0, 0.25). So it approaches these fronts much
// more slowly than SMPSO (which clamps) and stays short of 2 % in 250 generations; what is asked
// here is its share of the true front after 250 and after 1000 generations.
struct OmopsoCase {
  Zdt::Kind kind;
  int iterations;
  double share;
};

class OMOPSOOnZdt : public ::testing::TestWithParam<OmopsoCase> {};

TEST_P(OMOPSOOnZdt, ApproachesTheTrueFrontsHypervolume) {
  const OmopsoCase c = GetParam();
  Zdt problem(c.kind, 30);
  SwarmSetup setup(100, 100, c.iterations, 1.0 / 30.0);
  std::unique_ptr<SolutionSet> front = runSwarm<OMOPSO>(&problem, setup, 1234);
  const std::pair<double, double> reference{1.0, 1.0};
  const double reached = hypervolume2d(*front, reference);
  const double truth = trueFrontHypervolume(c.kind, reference);
  EXPECT_GT(reached, c.share * truth) << "reached " << reached << " of " << truth;
  EXPECT_LE(front->size(), 100);
  EXPECT_TRUE(mutuallyNonDominated(*front));
  EXPECT_EQ(problem.evaluations, 100L * (1 + c.iterations));
}

INSTANTIATE_TEST_SUITE_P(Zdt123, OMOPSOOnZdt,
                         ::testing::Values(OmopsoCase{Zdt::Kind::kZdt1, 250, 0.90},
                                           OmopsoCase{Zdt::Kind::kZdt2, 250, 0.75},
                                           OmopsoCase{Zdt::Kind::kZdt3, 250, 0.85},
                                           OmopsoCase{Zdt::Kind::kZdt1, 1000, 0.97},
                                           OmopsoCase{Zdt::Kind::kZdt2, 1000, 0.95},
                                           OmopsoCase{Zdt::Kind::kZdt3, 1000, 0.98}));

TEST(OMOPSO, SameSeedSameFrontBitForBit) {
  Zdt first(Zdt::Kind::kZdt2, 10);
  Zdt second(Zdt::Kind::kZdt2, 10);
  SwarmSetup setup(20, 15, 30, 0.1);
  std::unique_ptr<SolutionSet> a = runSwarm<OMOPSO>(&first, setup, 91);
  std::unique_ptr<SolutionSet> b = runSwarm<OMOPSO>(&second, setup, 91);
  EXPECT_TRUE(identicalSets(*a, *b));
  std::unique_ptr<SolutionSet> c = runSwarm<OMOPSO>(&first, setup, 92);
  EXPECT_FALSE(identicalSets(*a, *c));
}

// One generation of two particles on the line, derived by hand from the generator's draws.
TEST(OMOPSO, OneGenerationFollowsTheDrawsByHand) {
  int reflections = 0;
  for (int seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    LineProblem problem;
    SwarmSetup setup(2, 2, 1, 0.0);
    std::unique_ptr<SolutionSet> result = runSwarm<OMOPSO>(&problem, setup, seed);

    RandomGenerator twin(PseudoRandom::seedFor(seed));
    double x[2] = {twin.rndreal(0.0, 1.0), twin.rndreal(0.0, 1.0)};
    const double start[2] = {x[0], x[1]};
    ASSERT_NE(x[0], x[1]);
    double speed[2] = {0.0, 0.0};
    for (int i = 0; i < 2; ++i) {
      const int a = twin.rnd(0, 1);
      twin.rnd(0, 1);
      const double leader = start[a];
      const double r1 = twin.randomperc();
      const double r2 = twin.randomperc();
      const double c1 = twin.rndreal(1.5, 2.0);
      const double c2 = twin.rndreal(1.5, 2.0);
      const double w = twin.rndreal(0.1, 0.5);
      speed[i] = w * 0.0 + c1 * r1 * (start[i] - x[i]) + c2 * r2 * (leader - x[i]);
    }
    for (int i = 0; i < 2; ++i) {
      const double old = x[i];
      x[i] = old + speed[i];
      // Reflected to a random point between the old position and the wall.
      if (x[i] < 0.0) {
        x[i] = 0.0 + (old - 0.0) * twin.randomperc();
        ++reflections;
      }
      if (x[i] > 1.0) {
        x[i] = 1.0 - (1.0 - old) * twin.randomperc();
        ++reflections;
      }
    }
    twin.randomperc();  // non-uniform mutation of particle 0, probability 0: one draw
    twin.randomperc();  // uniform mutation of particle 1, probability 0: one draw

    const std::vector<double> all = {start[0], start[1], x[0], x[1]};
    const std::vector<double> expected = {*std::min_element(all.begin(), all.end()),
                                          *std::max_element(all.begin(), all.end())};
    EXPECT_EQ(sortedFirstVariables(*result), expected);
    EXPECT_EQ(PseudoRandom::randDouble(), twin.randomperc()) << "number of draws";
  }
  EXPECT_GT(reflections, 0) << "no seed exercised the reflection at a wall";
}

TEST(OMOPSO, AnArchiveOfOneReturnsOneLeader) {
  Zdt problem(Zdt::Kind::kZdt3, 5);
  SwarmSetup setup(9, 1, 15, 0.2);
  std::unique_ptr<SolutionSet> result = runSwarm<OMOPSO>(&problem, setup, 8);
  ASSERT_EQ(result->size(), 1);
}

TEST(OMOPSO, CanRunAgainOnTheSameInstance) {
  Zdt problem(Zdt::Kind::kZdt1, 6);
  SwarmSetup setup(12, 10, 10, 0.2);
  OMOPSO omopso(&problem);
  setup.configure(omopso);
  PseudoRandom::setSeed(6);
  std::unique_ptr<SolutionSet> first(omopso.execute());
  PseudoRandom::setSeed(6);
  std::unique_ptr<SolutionSet> second(omopso.execute());
  EXPECT_TRUE(identicalSets(*first, *second));
}

}  // namespace
