#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <string>

#include "optimization/kernel/BestSolutionSelection.h"
#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/NonUniformMutation.h"
#include "optimization/kernel/PolynomialMutation.h"
#include "optimization/kernel/PseudoRandom.h"
#include "optimization/kernel/RandomGenerator.h"
#include "optimization/kernel/UniformMutation.h"

namespace {

// Seeds the process generator and keeps a twin with the same sequence, to know every draw. A
// solution is made before seeding: its own random variables would consume draws.
class MutationTest : public ::testing::Test {
 protected:
  void seed(int n) {
    PseudoRandom::setSeed(n);
    twin = std::make_unique<RandomGenerator>(PseudoRandom::seedFor(n));
  }
  std::unique_ptr<Solution> solutionAt(std::initializer_list<double> values) {
    std::unique_ptr<Solution> solution(new Solution(&problem));
    int i = 0;
    for (double value : values) solution->getDecisionVariables()[i++]->setValue(value);
    return solution;
  }
  double valueOf(const std::unique_ptr<Solution>& solution, int i) {
    return solution->getDecisionVariables()[i]->getValue();
  }
  FixedProblem problem{3, 1, 0.0, 10.0};
  std::unique_ptr<RandomGenerator> twin;
};

// The polynomial step for y in [0, 10], by hand, with the fixed exponent 21.
double polynomialStep(double y, double rnd, double distributionIndex) {
  const double d = 10.0;
  const double mutPow = 1.0 / (distributionIndex + 1.0);
  double deltaq;
  if (rnd > 0.5) {
    const double xy = 1.0 - (10.0 - y) / d;
    deltaq = 1.0 - std::pow(2.0 * (1.0 - rnd) + 2.0 * (rnd - 0.5) * std::pow(xy, 21.0), mutPow);
  } else {
    const double xy = 1.0 - y / d;
    deltaq = std::pow(2.0 * rnd + (1.0 - 2.0 * rnd) * std::pow(xy, 21.0), mutPow) - 1.0;
  }
  return std::min(10.0, std::max(0.0, y + deltaq * d));
}

TEST_F(MutationTest, PolynomialMovesEachVariableByOneStepOfTwoDraws) {
  for (double distributionIndex : {20.0, 5.0, 0.0}) {
    SCOPED_TRACE(distributionIndex);
    double probability = 1.0;
    PolynomialMutation mutation(
        {{"probability", &probability}, {"distributionIndex", &distributionIndex}});
    auto solution = solutionAt({1.0, 5.0, 9.5});
    seed(21);
    mutation.execute(solution.get());
    const double start[] = {1.0, 5.0, 9.5};
    for (int i = 0; i < 3; ++i) {
      twin->randomperc();  // the draw that decides whether the variable mutates
      EXPECT_DOUBLE_EQ(valueOf(solution, i),
                       polynomialStep(start[i], twin->randomperc(), distributionIndex));
    }
    EXPECT_EQ(PseudoRandom::randDouble(), twin->randomperc());
  }
}

TEST_F(MutationTest, PolynomialExponentDoesNotFollowTheDistributionIndex) {
  // With index 0 the root is 1: deltaq = val - 1 with val built on xy^21, not on xy^1.
  double probability = 1.0;
  double distributionIndex = 0.0;
  PolynomialMutation mutation(
      {{"probability", &probability}, {"distributionIndex", &distributionIndex}});
  auto solution = solutionAt({3.0, 3.0, 3.0});
  seed(4);
  twin->randomperc();
  const double rnd = twin->randomperc();
  mutation.doMutation(probability, solution.get());
  const double withExponentOne =
      rnd > 0.5 ? 3.0 + (1.0 - (2.0 * (1.0 - rnd) + 2.0 * (rnd - 0.5) * 0.3)) * 10.0
                : 3.0 + ((2.0 * rnd + (1.0 - 2.0 * rnd) * 0.7) - 1.0) * 10.0;
  EXPECT_DOUBLE_EQ(valueOf(solution, 0), polynomialStep(3.0, rnd, 0.0));
  EXPECT_GT(std::fabs(valueOf(solution, 0) - withExponentOne), 1e-3);
}

TEST_F(MutationTest, UnmutatedVariablesCostOneDrawEach) {
  double probability = 0.0;
  PolynomialMutation polynomial({{"probability", &probability}});
  double perturbation = 0.5;
  UniformMutation uniform({{"probability", &probability}, {"perturbation", &perturbation}});
  int maxIterations = 10;
  NonUniformMutation nonUniform({{"probability", &probability},
                                 {"perturbation", &perturbation},
                                 {"maxIterations", &maxIterations}});
  Operator* operators[] = {&polynomial, &uniform, &nonUniform};
  for (Operator* op : operators) {
    auto solution = solutionAt({1.0, 2.0, 3.0});
    seed(8);
    op->execute(solution.get());
    for (int i = 0; i < 3; ++i) twin->randomperc();
    EXPECT_EQ(PseudoRandom::randDouble(), twin->randomperc());
    EXPECT_EQ(valueOf(solution, 0), 1.0);
    EXPECT_EQ(valueOf(solution, 2), 3.0);
  }
}

TEST_F(MutationTest, PolynomialStaysWithinTheBounds) {
  double probability = 1.0;
  double distributionIndex = 1.0;
  PolynomialMutation mutation(
      {{"probability", &probability}, {"distributionIndex", &distributionIndex}});
  seed(12);
  auto solution = solutionAt({0.0, 10.0, 5.0});
  for (int k = 0; k < 2000; ++k) {
    mutation.execute(solution.get());
    for (int i = 0; i < 3; ++i) {
      ASSERT_GE(valueOf(solution, i), 0.0);
      ASSERT_LE(valueOf(solution, i), 10.0);
    }
  }
}

TEST_F(MutationTest, UniformMovesByAHalfCentredDraw) {
  double probability = 1.0;
  double perturbation = 0.5;
  UniformMutation mutation({{"probability", &probability}, {"perturbation", &perturbation}});
  auto solution = solutionAt({5.0, 2.0, 7.0});
  seed(30);
  mutation.execute(solution.get());
  const double start[] = {5.0, 2.0, 7.0};
  for (int i = 0; i < 3; ++i) {
    twin->randomperc();
    EXPECT_EQ(valueOf(solution, i), (twin->randomperc() - 0.5) * 0.5 + start[i]);
  }
}

// Repairs by hand; the variable lies in [0, 10], half = 5.
TEST_F(MutationTest, UniformRepairIsAsymmetric) {
  double probability = 1.0;
  struct Case {
    double perturbation;
    double start;
  };
  const Case cases[] = {{0.5, 0.0}, {0.5, 10.0}, {40.0, 0.0}, {40.0, 10.0}, {40.0, 5.0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(::testing::Message() << "b " << c.perturbation << " x " << c.start);
    double perturbation = c.perturbation;
    UniformMutation mutation({{"probability", &probability}, {"perturbation", &perturbation}});
    for (int trial = 0; trial < 20; ++trial) {
      auto solution = solutionAt({c.start, c.start, c.start});
      seed(100 + trial);
      mutation.execute(solution.get());
      for (int i = 0; i < 3; ++i) {
        twin->randomperc();
        double expected = (twin->randomperc() - 0.5) * c.perturbation + c.start;
        const bool damped = c.perturbation > 0 && c.perturbation < 1;
        if (expected < 0.0) {
          // Below: to the middle, or with b in (0, 1) to lower + half * b * u.
          expected = damped ? 0.0 + 5.0 * c.perturbation * twin->randomperc() : 5.0;
        } else if (expected > 10.0 && damped) {
          expected = 10.0 - c.perturbation * twin->randomperc() * 5.0;
        }  // above with b outside (0, 1): left outside the bound
        ASSERT_EQ(valueOf(solution, i), expected) << "variable " << i << " trial " << trial;
      }
    }
  }
}

TEST_F(MutationTest, UniformNeedsBothParameters) {
  double value = 0.5;
  EXPECT_KERNEL_FAULT(UniformMutation({{"perturbation", &value}}),
                      "UniformMutation: parameter probability not set");
  EXPECT_KERNEL_FAULT(UniformMutation({{"probability", &value}}),
                      "UniformMutation: parameter perturbation not set");
}

TEST_F(MutationTest, NonUniformStepShrinksToNothingAtTheLastIteration) {
  double probability = 1.0;
  double perturbation = 0.5;
  int maxIterations = 4;
  NonUniformMutation mutation({{"probability", &probability},
                               {"perturbation", &perturbation},
                               {"maxIterations", &maxIterations}});
  for (int current : {0, 2, 4}) {
    SCOPED_TRACE(current);
    mutation.setParameter("currentIteration", &current);
    auto solution = solutionAt({4.0, 6.0, 1.0});
    seed(50);
    mutation.execute(solution.get());
    const double start[] = {4.0, 6.0, 1.0};
    for (int i = 0; i < 3; ++i) {
      twin->randomperc();
      const double r = twin->randomperc();
      const double y = r > 0.5 ? 0.0 - start[i] : 10.0 - start[i];
      const double r2 = twin->randomperc();
      double expected =
          start[i] + y * (1.0 - std::pow(r2, std::pow(1.0 - current / 4.0, perturbation)));
      if (current == 4) {
        EXPECT_EQ(valueOf(solution, i), start[i]);
      } else {
        // y points at a bound, and the step stays short of it: no repair.
        EXPECT_DOUBLE_EQ(valueOf(solution, i), expected);
      }
    }
    EXPECT_EQ(PseudoRandom::randDouble(), twin->randomperc());
  }
}

TEST(BestSolutionSelection, FirstOfTheBestIndex) {
  FixedProblem problem(1, 1);
  ObjectiveComparator ascending(0);
  BestSolutionSelection selection({{"comparator", &ascending}});
  struct Case {
    std::vector<double> values;
    int best;
  };
  const Case cases[] = {{{3, 1, 2}, 1}, {{1, 1, 0.5, 0.5}, 2}, {{7}, 0}, {{2, 2, 2}, 0}};
  for (const Case& c : cases) {
    SolutionSet set(static_cast<int>(c.values.size()));
    for (double value : c.values) set.add(solutionWith(&problem, {value}));
    std::unique_ptr<int> index(static_cast<int*>(selection.execute(&set)));
    ASSERT_NE(index, nullptr);
    EXPECT_EQ(*index, c.best);
  }
  SolutionSet empty(1);
  EXPECT_EQ(selection.execute(&empty), nullptr);
}

TEST(Operator, MissingParameterIsNullAndInserted) {
  double value = 1.0;
  PolynomialMutation mutation({{"probability", &value}});
  EXPECT_EQ(mutation.getParameter("probability"), &value);
  EXPECT_EQ(mutation.getParameter("nothing"), nullptr);
  mutation.setParameter("nothing", &value);
  EXPECT_EQ(mutation.getParameter("nothing"), &value);
}

}  // namespace
