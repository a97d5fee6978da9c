#include <gtest/gtest.h>

#include "rules/ReservoirSystem.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"

namespace {

// Reservoir 1 (100 hm³) picks the row by limits 50 and 100 %, reservoir 2 (50 hm³) the column by
// limits 40 and 100 %. Month slot s holds 10s + 1, 10s + 2 / 10s + 3, 10s + 4.
struct TwoDependencies {
  ReservoirSystem system{{10.0, 100.0, 50.0}};

  void configure(VolDepTwoReleaseRule& rule, unsigned int slots) {
    VolDepTwoReleaseStruct table{{50.0, 100.0}, {40.0, 100.0}, {}};
    for (double base = 0.0; base < 10.0 * slots; base += 10.0) {
      table.releases.push_back({{base + 1, base + 2}, {base + 3, base + 4}});
    }
    rule.setInterval(system.interval());
    rule.setReservoirDependency(system.reservoirs[1], system.reservoirs[2]);
    rule.setVolDepTwoReleaseStruct(table);
  }
};

}  // namespace

TEST(VolDepTwoReleaseRule, EachDependencyChoosesItsStep) {
  TwoDependencies setup;
  VolDepTwoStaticReleaseRule rule;
  setup.configure(rule, 1);
  struct Case {
    Date date;
    double volume1, volume2;  // hm³ of 100 and of 50
    double release;
  };
  const Case cases[] = {
      {Date(2001, 1, 1), 50.0, 30.0, 2.0},   // 50 % on the first limit; 60 %: second column
      {Date(2001, 2, 1), 80.0, 5.0, 3.0},    // 80 %: second row; 10 %: first column
      {Date(2001, 3, 1), 120.0, 60.0, 4.0},  // above every limit: the last row and column
      {Date(2001, 4, 1), 0.0, 20.0, 1.0},    // 0 %, and 40 % on the limit
  };
  for (const Case& c : cases) {
    setup.system.startVolume(1, c.date, c.volume1);
    setup.system.startVolume(2, c.date, c.volume2);
  }
  for (const Case& c : cases) {
    SCOPED_TRACE(c.release);
    EXPECT_EQ(rule.getRelease(c.date), c.release);
  }
  VolDepTwoPeriodicReleaseRule periodic;
  setup.configure(periodic, 12);
  EXPECT_EQ(periodic.getRelease(Date(2001, 2, 1)), 13.0);  // slot 1 (February), row 1, column 0
}

TEST(VolDepTwoReleaseRule, WithoutBothDependenciesOrLimitsReleasesNothing) {
  TwoDependencies setup;
  VolDepTwoPeriodicReleaseRule fresh;  // its empty table must not be indexed
  EXPECT_EQ(fresh.getRelease(Date(2001, 1, 1)), 0.0);
  fresh.setInterval(setup.system.interval());
  fresh.setReservoirDependency(setup.system.reservoirs[1], setup.system.reservoirs[2]);
  EXPECT_EQ(fresh.getRelease(Date(2001, 1, 1)), 0.0);
  VolDepTwoStaticReleaseRule rule;
  setup.configure(rule, 1);
  rule.setReservoirDependency2(nullptr);
  EXPECT_EQ(rule.getRelease(Date(2001, 1, 1)), 0.0);
}

TEST(VolDepTwoReleaseRule, CopyCarriesIdsAndAReloadDropsOnlyTheDeletedDependency) {
  TwoDependencies setup;
  VolDepTwoStaticReleaseRule rule;
  setup.configure(rule, 1);
  const auto copy = std::static_pointer_cast<VolDepTwoReleaseRule>(rule.copy());
  EXPECT_TRUE(!copy->getReservoirDependency1() && !copy->getReservoirDependency2());
  EXPECT_EQ(copy->getVolDepTwoReleaseStruct(), rule.getVolDepTwoReleaseStruct());
  setup.system.net.scenario->removeElement(2);
  copy->loadAfterScenarioInstantiated(setup.system.net.scenario);
  EXPECT_EQ(copy->getReservoirDependency1(), setup.system.reservoirs[1]);
  EXPECT_EQ(copy->getReservoirDependencyId1(), 1u);
  EXPECT_EQ(copy->getReservoirDependency2(), nullptr);
  EXPECT_EQ(copy->getReservoirDependencyId2(), 0u);
}
