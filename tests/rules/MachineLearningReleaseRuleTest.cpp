#include <gtest/gtest.h>

#include "rules/KNNRegressionColVolumesReleaseRule.h"
#include "rules/ReservoirSystem.h"
#include "support/ExpectThrow.h"

namespace {

// A nearest-neighbour rule of the first reservoir on the volumes of both, from three periods:
// (100, 50) released 10, (200, 50) released 20, (300, 80) released 30.
class LearnedRule : public ::testing::Test {
 protected:
  LearnedRule() {
    rule.setReservoirsOfSystem({system.reservoirs[0], system.reservoirs[1]});
    rule.setDatasetFromMatrix({{100, 50, 10}, {200, 50, 20}, {300, 80, 30}});
    rule.setInterval(system.interval());
    rule.buildAlgorithm();
    system.startVolume(0, kFebruary, 190.0);
    system.startVolume(1, kFebruary, 55.0);
  }

  static inline const Date kFebruary{2001, 2, 1};
  ReservoirSystem system{{400.0, 100.0}};
  KNNRegressionColVolumesReleaseRule rule;
};

}  // namespace

TEST_F(LearnedRule, ReleasesWhatTheNearestPeriodsOfVolumesReleased) {
  rule.setNumberOfEntriesForAverage(1);
  EXPECT_EQ(rule.getRelease(kFebruary), 20.0);
  // The next nearest is (100, 50), 90.1 away against (300, 80), 115.8 away.
  rule.setNumberOfEntriesForAverage(2);
  EXPECT_EQ(rule.getRelease(kFebruary), 15.0);
  EXPECT_EQ(rule.getDatasetMatrix(),
            (std::vector<std::vector<double>>{{100, 50, 10}, {200, 50, 20}, {300, 80, 30}}));
}

TEST_F(LearnedRule, ADisabledReservoirLeavesTheQueryShortOfAnAttribute) {
  system.reservoirs[1]->setEnabled(false);
  EXPECT_THROW_TEXT(rule.getRelease(kFebruary), std::invalid_argument,
                    "KNNAlgorithm::run(): attributes");
}

TEST_F(LearnedRule, ACopyLearnsOnItsOwn) {
  const auto copy = std::static_pointer_cast<KNNRegressionColVolumesReleaseRule>(rule.copy());
  copy->addEntryOfDataSet({{190, 55}, 99});
  copy->setNumberOfEntriesForAverage(3);
  copy->setNormalize(true);
  EXPECT_EQ(copy->getDataset().size(), 4u);
  EXPECT_EQ(rule.getDataset().size(), 3u);
  EXPECT_EQ(rule.getNumberOfEntriesForAverage(), 1u);
  EXPECT_FALSE(rule.isNormalize());
  EXPECT_EQ(copy->getReservoirsIds(), rule.getReservoirsIds());
  EXPECT_TRUE(copy->getReservoirs().empty());  // found again in the scenario that holds it
}

TEST_F(LearnedRule, ASystemOfOtherElementsOrEntriesOfAnotherSizeAreRefused) {
  const auto demand = system.net.node(ElementType::humanDemand);
  EXPECT_THROW_TEXT(
      rule.setReservoirsOfSystem({system.reservoirs[0], demand}), std::invalid_argument,
      "MachineLearningRegressionColVolumesReleaseRule::setReservoirsOfSystem(): every "
      "element must be a reservoir");
  EXPECT_THROW_TEXT(rule.addEntryOfDataSet({{1, 2, 3}, 4}), std::invalid_argument,
                    "MachineLearningRegressionAlgorithm::addEntry(): invalid attributes size");
  // A system of one reservoir: one attribute, and the entries of two no longer fit.
  rule.setReservoirsIdsOfSystem({system.reservoirs[0]->getId()});
  EXPECT_EQ(rule.getAlgorithm()->getNumberOfAttributes(), 1u);
  EXPECT_TRUE(rule.getDataset().empty());
  EXPECT_EQ(rule.getAlgorithm()->getAttributesNames(),
            std::vector<std::string>{std::to_string(system.reservoirs[0]->getId())});
}
