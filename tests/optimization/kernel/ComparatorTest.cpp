#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/KernelTestSupport.h"

namespace {

struct Case {
  std::string name;
  std::vector<double> a;
  double violationA;
  std::vector<double> b;
  double violationB;
  int expected;
};

void expectCases(Comparator& comparator, const std::vector<Case>& cases) {
  FixedProblem problem(1, 3);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::unique_ptr<Solution> a(solutionWith(&problem, c.a, c.violationA));
    std::unique_ptr<Solution> b(solutionWith(&problem, c.b, c.violationB));
    EXPECT_EQ(comparator.compare(a.get(), b.get()), c.expected);
  }
}

void expectNullsLast(Comparator& comparator) {
  FixedProblem problem(1, 3);
  std::unique_ptr<Solution> a(solutionWith(&problem, {1.0, 1.0, 1.0}));
  EXPECT_EQ(comparator.compare(nullptr, a.get()), 1);
  EXPECT_EQ(comparator.compare(a.get(), nullptr), -1);
  EXPECT_EQ(comparator.compare(nullptr, nullptr), 1);
}

TEST(ObjectiveComparator, AscendingOrDescendingOnOneObjective) {
  ObjectiveComparator second(1);
  expectCases(second, {{"lower", {9, 1, 0}, 0, {0, 2, 0}, 0, -1},
                       {"higher", {0, 3, 0}, 0, {9, 2, 0}, 0, 1},
                       {"equal", {0, 2, 5}, 0, {9, 2, 0}, 0, 0}});
  ObjectiveComparator descending(1, true);
  expectCases(descending, {{"lower", {9, 1, 0}, 0, {0, 2, 0}, 0, 1},
                           {"higher", {0, 3, 0}, 0, {9, 2, 0}, 0, -1}});
  expectNullsLast(second);
}

TEST(DominanceComparator, ParetoDominanceAfterViolations) {
  DominanceComparator dominance;
  expectCases(dominance,
              {{"a dominates", {1, 2, 3}, 0, {1, 3, 3}, 0, -1},
               {"b dominates", {2, 2, 3}, 0, {1, 2, 3}, 0, 1},
               {"mixed", {1, 5, 3}, 0, {2, 4, 3}, 0, 0},
               {"equal", {1, 2, 3}, 0, {1, 2, 3}, 0, 0},
               {"a feasible, b violating", {9, 9, 9}, 0, {1, 1, 1}, -1, -1},
               {"a violating less", {9, 9, 9}, -0.5, {1, 1, 1}, -2, -1},
               {"a violating more", {1, 1, 1}, -3, {9, 9, 9}, -2, 1},
               {"same violation: objectives decide", {1, 1, 1}, -2, {9, 9, 9}, -2, -1},
               // Positive violations are not violations: both differ but neither is negative.
               {"positive violation ignored", {1, 1, 1}, 5, {9, 9, 9}, 0, -1}});
  expectNullsLast(dominance);
}

TEST(EpsilonDominanceComparator, ADividedByOnePlusEta) {
  EpsilonDominanceComparator epsilon(0.1);
  // a' = a / 1.1
  expectCases(epsilon,
              {{"a within eta above b still favoured", {1.05, 2.2, 0}, 0, {1.0, 2.2, 0}, 0, -1},
               {"a far above", {1.2, 2.2, 0}, 0, {1.0, 1.5, 0}, 0, 1},
               {"both favoured", {1.2, 1.0, 0}, 0, {1.0, 2.2, 0}, 0, 0},
               {"neither: a' equals b", {1.1, 2.2, 0}, 0, {1.0, 2.0, 0}, 0, 0},
               {"violation first", {0, 0, 0}, -1, {5, 5, 5}, 0, 1}});
  expectNullsLast(epsilon);
}

TEST(EqualSolutions, MixedPairsCountAsLower) {
  EqualSolutions equals;
  expectCases(equals, {{"identical", {1, 2, 3}, 0, {1, 2, 3}, -4, 0},
                       {"a lower", {1, 2, 3}, 0, {1, 2, 4}, 0, -1},
                       {"a higher", {1, 2, 5}, 0, {1, 2, 4}, 0, 1},
                       {"mixed", {1, 9, 3}, 0, {2, 2, 3}, 0, -1},
                       {"mixed the other way", {2, 2, 3}, 0, {1, 9, 3}, 0, -1}});
  expectNullsLast(equals);
}

TEST(OverallConstraintViolationComparator, FeasibleAndLessViolatedFirst) {
  OverallConstraintViolationComparator violation;
  expectCases(violation, {{"both violating, a less", {0, 0, 0}, -1, {0, 0, 0}, -2, -1},
                          {"both violating, a more", {0, 0, 0}, -3, {0, 0, 0}, -2, 1},
                          {"both violating equally", {0, 0, 0}, -2, {0, 0, 0}, -2, 0},
                          {"a feasible", {0, 0, 0}, 0, {0, 0, 0}, -2, -1},
                          {"b feasible", {0, 0, 0}, -2, {0, 0, 0}, 0, 1},
                          {"both feasible", {0, 0, 0}, 0, {0, 0, 0}, 0, 0},
                          {"a positive, b violating", {0, 0, 0}, 1, {0, 0, 0}, -2, 0}});
}

TEST(CrowdingDistanceComparator, LessCrowdedFirst) {
  FixedProblem problem(1, 1);
  std::unique_ptr<Solution> a(new Solution(&problem));
  std::unique_ptr<Solution> b(new Solution(&problem));
  CrowdingDistanceComparator crowding;
  struct Row {
    double a;
    double b;
    int expected;
  };
  const Row rows[] = {
      {2.0, 1.0, -1}, {1.0, 2.0, 1}, {1.5, 1.5, 0}, {1.7976931348623157e308, 3.0, -1}};
  for (const Row& row : rows) {
    a->setCrowdingDistance(row.a);
    b->setCrowdingDistance(row.b);
    EXPECT_EQ(crowding.compare(a.get(), b.get()), row.expected) << row.a << " vs " << row.b;
  }
  expectNullsLast(crowding);
}

TEST(SolutionComparator, ZeroOnlyForTheSamePoint) {
  FixedProblem problem(2, 1);
  FixedProblem wider(3, 1);
  std::unique_ptr<Solution> a(new Solution(&problem));
  std::unique_ptr<Solution> b(new Solution(a.get()));
  std::unique_ptr<Solution> c(new Solution(&wider));
  SolutionComparator comparator;
  EXPECT_EQ(comparator.compare(a.get(), b.get()), 0);
  b->getDecisionVariables()[1]->setValue(a->getDecisionVariables()[1]->getValue() + 5e-11);
  EXPECT_EQ(comparator.compare(a.get(), b.get()), 0);
  b->getDecisionVariables()[1]->setValue(a->getDecisionVariables()[1]->getValue() + 1e-9);
  EXPECT_EQ(comparator.compare(a.get(), b.get()), -1);
  EXPECT_EQ(comparator.compare(b.get(), a.get()), -1);
  EXPECT_EQ(comparator.compare(a.get(), c.get()), -1);
}

}  // namespace
