#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "optimization/kernel/Comparator.h"
#include "optimization/kernel/CrowdingArchive.h"
#include "optimization/kernel/KernelTestSupport.h"
#include "optimization/kernel/NonDominatedSolutionList.h"

namespace {

using Points = std::vector<std::pair<double, double>>;

Points pointsOf(const SolutionSet& set) {
  Points points;
  for (int i = 0; i < set.size(); ++i) {
    points.emplace_back(set.get(i)->getObjective(0), set.get(i)->getObjective(1));
  }
  return points;
}

class ArchiveTest : public ::testing::Test {
 protected:
  Solution* point(double f1, double f2) { return solutionWith(&problem, {f1, f2}); }
  // Offers the point; a refused solution is deleted here, as the swarms do.
  template <typename Set>
  bool offer(Set& set, double f1, double f2) {
    Solution* solution = point(f1, f2);
    const bool kept = set.add(solution);
    if (!kept) delete solution;
    return kept;
  }
  FixedProblem problem{1, 2};
};

TEST_F(ArchiveTest, CrowdingArchiveKeepsTheNonDominated) {
  CrowdingArchive archive(10, 2);
  struct Step {
    double f1;
    double f2;
    bool kept;
    Points after;
  };
  const Step steps[] = {
      {2, 2, true, {{2, 2}}},
      {3, 3, false, {{2, 2}}},         // dominated
      {2, 2, false, {{2, 2}}},         // equal to a member
      {1, 3, true, {{2, 2}, {1, 3}}},  // mutually non-dominated
      {1, 1, true, {{1, 1}}},          // dominates both: both go
      {0.5, 4, true, {{1, 1}, {0.5, 4}}},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(::testing::Message() << step.f1 << "," << step.f2);
    EXPECT_EQ(offer(archive, step.f1, step.f2), step.kept);
    EXPECT_EQ(pointsOf(archive), step.after);
  }
}

TEST_F(ArchiveTest, DominatedMembersAreDeletedEvenWhenTheNewcomerIsRefusedLater) {
  // Not a valid archive (the first member is dominated by the second) but a possible walk: the
  // newcomer dominates the first, which is deleted, and is then dominated by the second.
  CrowdingArchive archive(10, 2);
  archive.SolutionSet::add(point(5, 5));
  archive.SolutionSet::add(point(1, 1));
  EXPECT_FALSE(offer(archive, 3, 3));
  EXPECT_EQ(pointsOf(archive), (Points{{1, 1}}));
}

TEST_F(ArchiveTest, OverflowRemovesTheMostCrowdedMember) {
  CrowdingArchive archive(4, 2);
  ASSERT_TRUE(offer(archive, 0, 10));
  ASSERT_TRUE(offer(archive, 10, 0));
  ASSERT_TRUE(offer(archive, 5, 5));
  ASSERT_TRUE(offer(archive, 4.8, 5.3));
  // Five members; interior distances on the sorted fronts, f1 then f2 (ranges 10):
  //   (4.8, 5.3): (5 - 0)/10 + (10 - 5)/10 = 1.0
  //   (5, 5):     (5.2 - 4.8)/10 + (5.3 - 4.7)/10 = 0.1   <- the most crowded
  //   (5.2, 4.7): (10 - 5)/10 + (5 - 0)/10 = 1.0
  EXPECT_TRUE(offer(archive, 5.2, 4.7));
  EXPECT_EQ(pointsOf(archive), (Points{{0, 10}, {10, 0}, {4.8, 5.3}, {5.2, 4.7}}));
}

TEST_F(ArchiveTest, OverflowMayRemoveTheNewcomerItself) {
  CrowdingArchive archive(3, 2);
  ASSERT_TRUE(offer(archive, 0, 10));
  ASSERT_TRUE(offer(archive, 10, 0));
  ASSERT_TRUE(offer(archive, 5, 5));
  //   (4.9, 5.2): (5 - 0)/10 + (10 - 5)/10 = 1.0   <- the most crowded
  //   (5, 5):     (10 - 4.9)/10 + (5.2 - 0)/10 = 1.03
  // The newcomer is removed and handed back: the caller still owns it.
  Solution* newcomer = point(4.9, 5.2);
  EXPECT_FALSE(archive.add(newcomer));
  EXPECT_EQ(pointsOf(archive), (Points{{0, 10}, {10, 0}, {5, 5}}));
  delete newcomer;
}

TEST_F(ArchiveTest, ArchiveOfOneTakesEveryNonDominatedNewcomer) {
  CrowdingArchive archive(1, 2);
  ASSERT_TRUE(offer(archive, 1, 2));
  // Two members on overflow both get the largest distance, and the worst is the earlier of
  // equals: the old member goes.
  EXPECT_TRUE(offer(archive, 2, 1));
  EXPECT_EQ(pointsOf(archive), (Points{{2, 1}}));
  EXPECT_FALSE(offer(archive, 3, 1));
  EXPECT_EQ(archive.get(0)->getCrowdingDistance(), std::numeric_limits<double>::max());
}

TEST_F(ArchiveTest, NeverMoreThanMaxSizeWhenNothingIsRefused) {
  CrowdingArchive archive(5, 2);
  for (int i = 0; i < 40; ++i) {
    const double f1 = (i * 7 % 40) / 40.0;
    offer(archive, f1, 1.0 - f1);
    EXPECT_LE(archive.size(), 5);
  }
  EXPECT_EQ(archive.size(), 5);
  EXPECT_EQ(archive.getMaxSize(), 5);
}

TEST_F(ArchiveTest, NonDominatedListKeepsEqualSolutions) {
  NonDominatedSolutionList list;
  EXPECT_TRUE(offer(list, 1, 2));
  EXPECT_TRUE(offer(list, 1, 2));
  EXPECT_FALSE(offer(list, 1, 3));
  EXPECT_TRUE(offer(list, 2, 1));
  EXPECT_EQ(pointsOf(list), (Points{{1, 2}, {1, 2}, {2, 1}}));
  EXPECT_TRUE(offer(list, 0.5, 0.5));
  EXPECT_EQ(pointsOf(list), (Points{{0.5, 0.5}}));
}

TEST_F(ArchiveTest, NonDominatedListUnderEpsilonDominance) {
  EpsilonDominanceComparator epsilon(0.1);
  NonDominatedSolutionList list(&epsilon);
  EXPECT_TRUE(offer(list, 1.0, 2.0));
  // (1.05, 2.05) / 1.1 = (0.95, 1.86) lies below (1, 2) in both: it replaces the member.
  EXPECT_TRUE(offer(list, 1.05, 2.05));
  EXPECT_EQ(pointsOf(list), (Points{{1.05, 2.05}}));
  // (1.2, 2.4) / 1.1 = (1.09, 2.18): above in both, refused.
  EXPECT_FALSE(offer(list, 1.2, 2.4));
}

}  // namespace
