#include <gtest/gtest.h>

#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/ReservoirSystem.h"

namespace {

// Reservoirs of 60 and 40 hm³ (W = 100 hm³), 5 hm³ minimum each (10 for the system), cut at 30 %
// and a further 40 % of W: zones below 30, below 70 and from 70 hm³ up, releasing 1, 2 and 3 m³/s.
// Storage A + B by month: January 4 + 6 = 10 (on the minimum), February 20 + 10 = 30 (on the first
// threshold), March 50 + 20 = 70 (on the second), April 15 + 10 = 25.
struct ThreeZones {
  ReservoirSystem system{{60.0, 40.0}};
  HydrologicalStateReleaseRule rule;

  ThreeZones() {
    const double storage[4][2] = {{4, 6}, {20, 10}, {50, 20}, {15, 10}};
    for (std::size_t r = 0; r < 2; ++r) {
      system.reservoirs[r]->getReservoirInfo().minVol = 5.0;
      for (unsigned int month = 1; month <= 4; ++month) {
        system.startVolume(r, Date(2001, month, 1), storage[month - 1][r]);
      }
    }
    rule.setInterval(system.interval());
    rule.setZeroContribution(true);  // storage only: the inflow series stay empty (-999.0)
    rule.setReservoirsOfSystem({system.reservoirs[0], system.reservoirs[1]});
    rule.setStates(3, {0.3, 0.4}, {1.0, 2.0, 3.0});
  }
};

}  // namespace

TEST(HydrologicalStateReleaseRule, AStateOnAThresholdTakesTheUpperZone) {
  ThreeZones setup;
  const double releases[] = {1.0, 2.0, 3.0, 1.0};
  for (unsigned int month = 1; month <= 4; ++month) {
    SCOPED_TRACE(month);
    EXPECT_EQ(setup.rule.getRelease(Date(2001, month, 1)), releases[month - 1]);
  }
  setup.system.startVolume(1, Date(2001, 2, 1), 9.99);  // 29.99 hm³: below the threshold
  EXPECT_EQ(setup.rule.getReleaseIndex(Date(2001, 2, 1)), 0u);
}

TEST(HydrologicalStateReleaseRule, OccurrencesAndGuaranteesOverTheInterval) {
  ThreeZones setup;
  // Zones 0, 1, 2, 0; January's 10 hm³ does not exceed the minimum: 1 failure in 4 months.
  EXPECT_EQ(setup.rule.getEHOccurrences(), (std::vector<unsigned int>{2, 1, 1}));
  const auto guarantees = setup.rule.getGuaranteeResults();
  ASSERT_EQ(guarantees.size(), 3u);
  EXPECT_DOUBLE_EQ(guarantees[0], 75.0);  // (1 - 1/4) * 100
  EXPECT_DOUBLE_EQ(guarantees[1], 50.0);  // (1 - 2/4) * 100: two months in zone 0
  EXPECT_DOUBLE_EQ(guarantees[2], 25.0);  // (1 - (2 + 1)/4) * 100
}

TEST(HydrologicalStateReleaseRule, InflowCountsUnlessZeroContribution) {
  ThreeZones setup;
  const Date january(2001, 1, 1);
  EXPECT_EQ(setup.rule.getHydrologicalStateValue(january), 10.0);
  setup.system.reservoirs[0]->getInputSerie(SerieType::naturalIncrementalFlow)->fill(1.0);
  setup.system.reservoirs[1]->getInputSerie(SerieType::naturalIncrementalFlow)->fill(0.5);
  setup.rule.setZeroContribution(false);
  // 10 hm³ stored + (1 + 0.5) m³/s over 31 days of 0.0864 hm³ per m³/s = 10 + 4.0176 hm³.
  EXPECT_NEAR(setup.rule.getHydrologicalStateValue(january), 14.0176, 1e-12);
}

TEST(HydrologicalStateReleaseRule, ADisabledReservoirCountsForNothing) {
  ThreeZones setup;
  setup.system.reservoirs[1]->setEnabled(false);
  EXPECT_EQ(setup.rule.getW(), 60.0);
  EXPECT_EQ(setup.rule.getMinVolOfSystem(), 5.0);
  EXPECT_EQ(setup.rule.getRelease(Date(2001, 3, 1)), 3.0);  // 50 >= (0.3 + 0.4) * 60 = 42
}

TEST(HydrologicalStateReleaseRule, OneStateAlwaysGivesItsRelease) {
  HydrologicalStateReleaseRule rule;  // no reservoirs and no results: no state is computed
  rule.setStates(1, {}, {4.5});
  EXPECT_EQ(rule.getRelease(Date(1980, 6, 1)), 4.5);
}

TEST(HydrologicalStateReleaseRule, CopyCarriesIdsAndAReloadDropsDeletedReservoirs) {
  ThreeZones setup;
  const auto copy = std::static_pointer_cast<HydrologicalStateReleaseRule>(setup.rule.copy());
  EXPECT_TRUE(copy->getReservoirs().empty());
  EXPECT_EQ(copy->getVectorOfProportionalZones(), (std::vector<double>{0.3, 0.4}));
  EXPECT_EQ(copy->getRelease(), (std::vector<double>{1.0, 2.0, 3.0}));
  setup.system.net.scenario->removeElement(0);
  copy->loadAfterScenarioInstantiated(setup.system.net.scenario);
  ASSERT_EQ(copy->getReservoirs().size(), 1u);
  EXPECT_EQ(copy->getReservoirs()[0], setup.system.reservoirs[1]);
  EXPECT_EQ(copy->getReservoirsIds(), std::vector<unsigned int>{1});
}
