#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "optimization/kernel/Distance.h"
#include "optimization/kernel/KernelTestSupport.h"

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

class DistanceTest : public ::testing::Test {
 protected:
  SolutionSet* setOf(const std::vector<std::vector<double>>& objectives) {
    auto* set = new SolutionSet(static_cast<int>(objectives.size()));
    for (const auto& values : objectives) set->add(solutionWith(&problem, values));
    return set;
  }
  FixedProblem problem{2, 2};
  Distance distance;
};

TEST_F(DistanceTest, SmallSetsAreAllExtremes) {
  for (int size = 0; size <= 2; ++size) {
    SCOPED_TRACE(size);
    std::vector<std::vector<double>> points;
    for (int i = 0; i < size; ++i) points.push_back({double(i), double(-i)});
    std::unique_ptr<SolutionSet> set(setOf(points));
    distance.crowdingDistanceAssignment(set.get(), 2);
    for (int i = 0; i < size; ++i) EXPECT_EQ(set->get(i)->getCrowdingDistance(), kLargest);
  }
}

TEST_F(DistanceTest, CrowdingSumsTheNeighbourGapsOverTheRanges) {
  // f1 range 0..8, f2 range 0..4, members in no particular order.
  std::unique_ptr<SolutionSet> set(setOf({{2, 3}, {8, 0}, {0, 4}, {5, 1}}));
  set->get(0)->setCrowdingDistance(123.0);  // stale values are reset first
  distance.crowdingDistanceAssignment(set.get(), 2);
  // (2, 3): (5 - 0)/8 + (4 - 1)/4 = 0.625 + 0.75
  EXPECT_DOUBLE_EQ(set->get(0)->getCrowdingDistance(), 1.375);
  // (5, 1): (8 - 2)/8 + (3 - 0)/4 = 0.75 + 0.75
  EXPECT_DOUBLE_EQ(set->get(3)->getCrowdingDistance(), 1.5);
  EXPECT_EQ(set->get(1)->getCrowdingDistance(), kLargest);
  EXPECT_EQ(set->get(2)->getCrowdingDistance(), kLargest);
  // The set keeps its order and its members.
  EXPECT_EQ(set->get(1)->getObjective(0), 8.0);
}

TEST_F(DistanceTest, AFlatObjectiveDividesByZero) {
  std::unique_ptr<SolutionSet> set(setOf({{0, 1}, {1, 1}, {2, 1}}));
  distance.crowdingDistanceAssignment(set.get(), 2);
  // f1 gives the middle (2 - 0)/2 = 1; f2 then adds (1 - 1)/(1 - 1) = NaN, and it stays.
  EXPECT_TRUE(std::isnan(set->get(1)->getCrowdingDistance()));
  EXPECT_EQ(set->get(0)->getCrowdingDistance(), kLargest);
}

TEST_F(DistanceTest, EuclideanDistancesInObjectiveAndVariableSpace) {
  std::unique_ptr<SolutionSet> set(setOf({{0, 0}, {3, 4}, {6, 8}}));
  EXPECT_EQ(distance.distanceBetweenObjectives(set->get(0), set->get(1)), 5.0);
  double** matrix = distance.distanceMatrix(set.get());
  const double expected[3][3] = {{0, 5, 10}, {5, 0, 5}, {10, 5, 0}};
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) EXPECT_DOUBLE_EQ(matrix[i][j], expected[i][j]);
    delete[] matrix[i];
  }
  delete[] matrix;

  std::unique_ptr<Solution> probe(solutionWith(&problem, {3, 1}));
  EXPECT_DOUBLE_EQ(distance.distanceToSolutionSetInObjectiveSpace(probe.get(), set.get()), 3.0);
  SolutionSet empty(1);
  EXPECT_EQ(distance.distanceToSolutionSetInObjectiveSpace(probe.get(), &empty), kLargest);
  EXPECT_EQ(distance.distanceToSolutionSetInSolutionSpace(probe.get(), &empty), kLargest);

  for (int i = 0; i < 3; ++i) {
    set->get(i)->getDecisionVariables()[0]->setValue(0.0);
    set->get(i)->getDecisionVariables()[1]->setValue(0.1 * i);
  }
  probe->getDecisionVariables()[0]->setValue(0.3);
  probe->getDecisionVariables()[1]->setValue(0.2);
  EXPECT_DOUBLE_EQ(distance.distanceBetweenSolutions(probe.get(), set->get(0)),
                   std::sqrt(0.09 + 0.04));
  EXPECT_DOUBLE_EQ(distance.distanceToSolutionSetInSolutionSpace(probe.get(), set.get()), 0.3);
}

}  // namespace
