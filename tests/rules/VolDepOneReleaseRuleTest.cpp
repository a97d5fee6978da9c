#include <gtest/gtest.h>

#include "rules/ReservoirSystem.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"

namespace {

// Reservoir 0 owns the rule; reservoir 1, of 200 hm³, is the dependency. Limits 30, 60 and 100 %
// with releases 1, 2 and 3 m³/s.
struct OneDependency {
  ReservoirSystem system{{50.0, 200.0}};
  VolDepOneStaticReleaseRule rule;

  OneDependency() {
    rule.setInterval(system.interval());
    rule.setReservoirDependency(system.reservoirs[1]);
    rule.setVectorOfVolDepOneReleaseStruct({{30.0, {1.0}}, {60.0, {2.0}}, {100.0, {3.0}}});
  }
};

}  // namespace

TEST(VolDepOneReleaseRule, TheFirstRowWhoseLimitIsReachedWins) {
  struct Case {
    Date date;
    double volume;  // hm³ of 200
    double release;
  };
  const Case cases[] = {
      {Date(2001, 1, 1), 0.0, 1.0},         // 0 %
      {Date(2001, 2, 1), 60.0000002, 1.0},  // 30.0000001 %: within 1e-06 of the first limit
      {Date(2001, 3, 1), 60.2, 2.0},        // 30.1 %
      {Date(2001, 4, 1), 201.0, 3.0},       // 100.5 %: above every limit, the last row
  };
  OneDependency setup;
  for (const Case& c : cases) setup.system.startVolume(1, c.date, c.volume);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.volume);
    EXPECT_EQ(setup.rule.getRelease(c.date), c.release);
  }
}

TEST(VolDepOneReleaseRule, PeriodicRowsAnswerByMonth) {
  ReservoirSystem system{{100.0}};
  VolDepOnePeriodicReleaseRule rule;
  rule.setInterval(system.interval());
  rule.setReservoirDependency(system.reservoirs[0]);
  std::vector<double> low(12), high(12);
  for (int m = 0; m < 12; ++m) low[m] = m + 1, high[m] = 10 * (m + 1);
  // Equal and nearly falling limits (by less than 1e-06) are in order.
  rule.setVectorOfVolDepOneReleaseStruct(
      {{50.0, low}, {50.0, low}, {49.9999995, low}, {100, high}});
  system.startVolume(0, Date(2001, 1, 1), 40.0);  // 40 %: first row, January
  system.startVolume(0, Date(2001, 3, 1), 70.0);  // 70 %: last row, March
  EXPECT_EQ(rule.getRelease(Date(2001, 1, 1)), 1.0);
  EXPECT_EQ(rule.getRelease(Date(2001, 3, 1)), 30.0);
}

TEST(VolDepOneReleaseRule, CopyCarriesTheIdAndTableButNoDependency) {
  OneDependency setup;
  setup.system.startVolume(1, Date(2001, 1, 1), 100.0);  // 50 %: second row
  const auto copy = std::static_pointer_cast<VolDepOneReleaseRule>(setup.rule.copy());
  EXPECT_EQ(copy->getReservoirDependency(), nullptr);
  EXPECT_EQ(copy->getReservoirDependencyId(), 1u);
  EXPECT_EQ(copy->getRelease(Date(2001, 1, 1)), 0.0);
  copy->loadAfterScenarioInstantiated(setup.system.net.scenario);
  EXPECT_EQ(copy->getReservoirDependency(), setup.system.reservoirs[1]);
  EXPECT_EQ(copy->getRelease(Date(2001, 1, 1)), 2.0);
}

TEST(VolDepOneReleaseRule, ADeletedDependencyIsForgotten) {
  OneDependency setup;
  setup.system.net.scenario->removeElement(1);
  setup.rule.loadAfterScenarioInstantiated(setup.system.net.scenario);
  EXPECT_EQ(setup.rule.getReservoirDependency(), nullptr);
  EXPECT_EQ(setup.rule.getReservoirDependencyId(), 0u);
  EXPECT_EQ(setup.rule.getRelease(Date(2001, 1, 1)), 0.0);
}
