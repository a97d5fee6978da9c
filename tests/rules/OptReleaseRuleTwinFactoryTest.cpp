#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptReleaseRuleTwinFactory.h"
#include "rules/OptVolDepOneReleaseRule.h"
#include "rules/OptVolDepTwoReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/ReleaseRuleFactory.h"
#include "rules/ReservoirSystem.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr double kMost = 40.0;  // maxRelease, m³/s: a decision variable of 0.5 stands for 20
constexpr double kMark = OptReleaseRule::kDecisionMark;
const std::vector<double> kTwentyEachMonth(4, 20.0);

// Reservoirs 0, 1 and 2 of 100, 50 and 200 hm³, with the storage that begins each month of
// January to April 2001 (in percent of each maximum):
//   r0: 20, 50, 40, 90 hm³ (20, 50, 40, 90 %)
//   r1: 10, 20, 20, 10 hm³ (20, 40, 40, 20 %)
//   r2: 150, 30, 100, 190 hm³ (75, 15, 50, 95 %)
class OptReleaseRuleTwinFactoryTest : public ::testing::Test {
 protected:
  OptReleaseRuleTwinFactoryTest() {
    const double storage[3][4] = {{20, 50, 40, 90}, {10, 20, 20, 10}, {150, 30, 100, 190}};
    for (std::size_t r = 0; r < 3; ++r) {
      for (std::size_t m = 0; m < kMonths.size(); ++m) {
        system.startVolume(r, kMonths[m], storage[r][m]);
      }
    }
  }

  static std::vector<double> monthly(const ReleaseRule& rule) {
    std::vector<double> releases;
    for (const Date& month : kMonths) releases.push_back(rule.getRelease(month));
    return releases;
  }

  // The twin of rule, resolved in the scenario like a rule copied into it, once it has shown that
  // it is of optType, carries the rule's run settings, takes decisionVars values and releases,
  // like the simulation rule it converts back into, what rule releases each month.
  std::shared_ptr<ReleaseRule> twinOf(const ReleaseRule& rule, ReleaseRuleType optType,
                                      unsigned int decisionVars) {
    auto twin = OptReleaseRuleTwinFactory::make(rule, kMost);
    EXPECT_EQ(twin->getType().getType(), optType);
    EXPECT_EQ(twin->getInterval(), rule.getInterval());
    EXPECT_EQ(twin->getWindowIndex(), rule.getWindowIndex());
    EXPECT_EQ(twin->getZeroContribution(), rule.getZeroContribution());
    twin->loadAfterScenarioInstantiated(system.net.scenario);
    const auto& opt = dynamic_cast<const OptReleaseRule&>(*twin);
    EXPECT_EQ(opt.getNumOfDecisionVars(), decisionVars);

    const auto back = opt.convertToReleaseRule();
    EXPECT_EQ(back->getType(), rule.getType());
    // What a run writes into its rules before it starts.
    back->setInterval(rule.getInterval());
    back->setZeroContribution(rule.getZeroContribution());
    back->loadAfterScenarioInstantiated(system.net.scenario);
    EXPECT_EQ(monthly(*twin), monthly(rule));
    EXPECT_EQ(monthly(*back), monthly(rule));
    return twin;
  }

  // The twin's releases each month once every one of its decision variables is 0.5.
  static std::vector<double> monthlyAtHalf(ReleaseRule& twin) {
    auto& opt = dynamic_cast<OptReleaseRule&>(twin);
    opt.setDecisionVars(std::vector<double>(opt.getNumOfDecisionVars(), 0.5));
    return monthly(twin);
  }

  static inline const std::vector<Date> kMonths = {Date(2001, 1, 1), Date(2001, 2, 1),
                                                   Date(2001, 3, 1), Date(2001, 4, 1)};
  ReservoirSystem system{{100.0, 50.0, 200.0}};
};

}  // namespace

TEST_F(OptReleaseRuleTwinFactoryTest, NoneTakesNothing) {
  NoneReleaseRule rule;
  auto twin = twinOf(rule, ReleaseRuleType::optNone, 0);
  EXPECT_EQ(monthlyAtHalf(*twin), std::vector<double>(4, 0.0));
}

TEST_F(OptReleaseRuleTwinFactoryTest, ConstantIsChosenBetweenZeroAndTheMaximum) {
  ConstReleaseRule rule;
  rule.setRelease(12.0);
  rule.setWindowIndex(2);
  auto twin = twinOf(rule, ReleaseRuleType::optConstant, 1);
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);
  auto& opt = dynamic_cast<OptConstReleaseRule&>(*twin);
  opt.setDecisionVars({0.0});
  EXPECT_EQ(opt.getRelease(), 0.0);
  opt.setDecisionVars({1.0});
  EXPECT_EQ(opt.getRelease(), kMost);
}

TEST_F(OptReleaseRuleTwinFactoryTest, PeriodicHandsOverEveryMonth) {
  PeriodicReleaseRule rule;
  for (unsigned int month = 1; month <= 12; ++month) rule.setRelease(month, month);
  EXPECT_EQ(monthly(rule), (std::vector<double>{1, 2, 3, 4}));
  auto twin = twinOf(rule, ReleaseRuleType::optPeriodic, 12);
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);
  EXPECT_EQ(dynamic_cast<OptPeriodicReleaseRule&>(*twin).getRelease(),
            std::vector<double>(12, 20.0));
}

TEST_F(OptReleaseRuleTwinFactoryTest, SerieHandsOverTheDatesThatHoldARelease) {
  SerieReleaseRule rule;
  rule.getReleaseSerie()->setInterval(system.interval());
  for (unsigned int month = 1; month <= 3; ++month) {
    rule.getReleaseSerie()->setValue(Date(2001, month, 1), 4.0 + month);
  }
  EXPECT_EQ(monthly(rule), (std::vector<double>{5, 6, 7, -999}));
  auto twin = twinOf(rule, ReleaseRuleType::optSerie, 3);
  EXPECT_EQ(monthlyAtHalf(*twin), (std::vector<double>{20, 20, 20, -999}));
  EXPECT_EQ(rule.getReleaseSerie()->getValue(Date(2001, 1, 1)), 5.0);  // the twin's own series
}

// Reservoirs 0 and 1 hold W = 150 hm³, cut at 0.4 W = 60 hm³: 30 hm³ in January releases 3,
// 70, 60 (on the threshold) and 100 hm³ release 9.
TEST_F(OptReleaseRuleTwinFactoryTest, HydrologicalStateHandsOverTheReleasesAndKeepsTheZones) {
  HydrologicalStateReleaseRule rule;
  rule.setInterval(system.interval());
  rule.setZeroContribution(true);
  rule.setReservoirsOfSystem({system.reservoirs[0], system.reservoirs[1]});
  rule.setStates(2, {0.4}, {3.0, 9.0});
  EXPECT_EQ(monthly(rule), (std::vector<double>{3, 9, 9, 9}));
  auto twin = twinOf(rule, ReleaseRuleType::optHydrologicalState, 2);
  auto& opt = dynamic_cast<OptHydrologicalStateReleaseRule&>(*twin);
  EXPECT_EQ(opt.getVectorOfOptProportionalZones(), std::vector<double>{0.4});
  EXPECT_EQ(opt.getOptRelease(), (std::vector<double>{kMark, kMark}));
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);
  EXPECT_EQ(opt.getVectorOfProportionalZones(), std::vector<double>{0.4});
}

// Static: reservoir 2 by limits 30, 60, 100 % releasing 2, 4, 6: 75 % gives 6, 15 % 2, 50 % 4,
// 95 % 6. Periodic: reservoir 1 by limits 30 and 100 % releasing the month's number and 100 more:
// 20 % in January gives 1, 40 % 102 and 103, 20 % in April 4.
TEST_F(OptReleaseRuleTwinFactoryTest, OneReservoirTablesHandOverEveryReleaseAndKeepTheLimits) {
  VolDepOneStaticReleaseRule byStorage;
  byStorage.setInterval(system.interval());
  byStorage.setReservoirDependency(system.reservoirs[2]);
  byStorage.setVectorOfVolDepOneReleaseStruct({{30.0, {2.0}}, {60.0, {4.0}}, {100.0, {6.0}}});
  EXPECT_EQ(monthly(byStorage), (std::vector<double>{6, 2, 4, 6}));
  auto twin = twinOf(byStorage, ReleaseRuleType::optStaticVolumeDependence1, 3);
  EXPECT_EQ(dynamic_cast<OptVolDepOneReleaseRule&>(*twin).getToOptVectorOfVolDepOneReleaseStruct(),
            (OptVolDepOneReleaseRule::Table{{30.0, {kMark}}, {60.0, {kMark}}, {100.0, {kMark}}}));
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);

  VolDepOnePeriodicReleaseRule byMonth;
  byMonth.setInterval(system.interval());
  byMonth.setReservoirDependency(system.reservoirs[1]);
  VolDepOneReleaseStruct low{30.0, {}}, high{100.0, {}};
  for (double month = 1; month <= 12; ++month) {
    low.releases.push_back(month);
    high.releases.push_back(100.0 + month);
  }
  byMonth.setVectorOfVolDepOneReleaseStruct({low, high});
  EXPECT_EQ(monthly(byMonth), (std::vector<double>{1, 102, 103, 4}));
  twin = twinOf(byMonth, ReleaseRuleType::optPeriodicVolumeDependence1, 24);
  const std::vector<double> marks(12, kMark);
  EXPECT_EQ(dynamic_cast<OptVolDepOneReleaseRule&>(*twin).getToOptVectorOfVolDepOneReleaseStruct(),
            (OptVolDepOneReleaseRule::Table{{30.0, marks}, {100.0, marks}}));
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);
}

// Static: rows by reservoir 0 (limits 50, 100 %), columns by reservoir 1 (30, 100 %), releases
// 1 2 / 3 4: (20 %, 20 %) gives 1, (50 %, 40 %) and (40 %, 40 %) 2, (90 %, 20 %) 3. Periodic: rows
// by reservoir 2 (50, 100 %), columns by reservoir 0 (45, 100 %), month slot s holding
// 10s + 1, 10s + 2 / 10s + 3, 10s + 4: (75 %, 20 %) gives 3, (15 %, 50 %) 12, (50 %, 40 %) 21,
// (95 %, 90 %) 34.
TEST_F(OptReleaseRuleTwinFactoryTest, TwoReservoirTablesHandOverEveryReleaseAndKeepTheLimits) {
  VolDepTwoStaticReleaseRule byStorage;
  byStorage.setInterval(system.interval());
  byStorage.setReservoirDependency(system.reservoirs[0], system.reservoirs[1]);
  byStorage.setVolDepTwoReleaseStruct({{50.0, 100.0}, {30.0, 100.0}, {{{1.0, 2.0}, {3.0, 4.0}}}});
  EXPECT_EQ(monthly(byStorage), (std::vector<double>{1, 2, 2, 3}));
  auto twin = twinOf(byStorage, ReleaseRuleType::optStaticVolumeDependence2, 4);
  EXPECT_EQ(
      dynamic_cast<OptVolDepTwoReleaseRule&>(*twin).getOptVolDepTwoReleaseStruct(),
      (VolDepTwoReleaseStruct{{50.0, 100.0}, {30.0, 100.0}, {{{kMark, kMark}, {kMark, kMark}}}}));
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);

  VolDepTwoPeriodicReleaseRule byMonth;
  byMonth.setInterval(system.interval());
  byMonth.setReservoirDependency(system.reservoirs[2], system.reservoirs[0]);
  VolDepTwoReleaseStruct table{{50.0, 100.0}, {45.0, 100.0}, {}};
  for (double base = 0.0; base < 120.0; base += 10.0) {
    table.releases.push_back({{base + 1, base + 2}, {base + 3, base + 4}});
  }
  byMonth.setVolDepTwoReleaseStruct(table);
  EXPECT_EQ(monthly(byMonth), (std::vector<double>{3, 12, 21, 34}));
  twin = twinOf(byMonth, ReleaseRuleType::optPeriodicVolumeDependence2, 48);
  EXPECT_EQ(monthlyAtHalf(*twin), kTwentyEachMonth);
}

// Every rule in its default state, the run's settings written into it, has an optimisable twin
// that carries them, itself when it is optimisable already; only the learned rules have none.
TEST(OptReleaseRuleTwinFactory, EveryRuleButALearnedOneHasATwin) {
  const Interval interval(Date(1990, 1, 1), Date(1990, 12, 1), Vocabulary::of(Periodicity::daily));
  for (const auto& row : Vocabulary::releaseRuleTypes().getRows()) {
    SCOPED_TRACE(row.getName());
    const auto rule = ReleaseRuleFactory::make(row.getType());
    rule->setInterval(interval);
    rule->setWindowIndex(3);
    rule->setZeroContribution(true);
    if (std::dynamic_pointer_cast<MachineLearningRegressionColVolumesReleaseRule>(rule)) {
      EXPECT_THROW_TEXT(
          (void)OptReleaseRuleTwinFactory::make(*rule, kMost), std::invalid_argument,
          "OptReleaseRuleTwinFactory::make(): no optimisable twin for " + row.getName());
      continue;
    }
    const auto twin = OptReleaseRuleTwinFactory::make(*rule, kMost);
    EXPECT_NE(twin, rule);
    EXPECT_EQ(twin->getInterval(), interval);
    EXPECT_EQ(twin->getWindowIndex(), 3u);
    EXPECT_TRUE(twin->getZeroContribution());
    EXPECT_TRUE(std::dynamic_pointer_cast<OptReleaseRule>(twin));
    if (std::dynamic_pointer_cast<OptReleaseRule>(rule)) {
      EXPECT_EQ(twin->getType(), row);
    }
  }
}

// An optimisable rule keeps its own range and flags rather than taking [0, maxRelease].
TEST(OptReleaseRuleTwinFactory, AnOptimisableRuleIsCopiedAsItIs) {
  OptConstReleaseRule rule;
  rule.setLowerAndUpperRelease(2.0, 9.0);
  rule.setRelease(7.0);
  rule.setToOpt(true);
  auto twin = OptReleaseRuleTwinFactory::make(rule, kMost);
  auto& copy = dynamic_cast<OptConstReleaseRule&>(*twin);
  EXPECT_EQ(copy.getRelease(), 7.0);
  copy.setDecisionVars({0.5});
  EXPECT_EQ(copy.getRelease(), 5.5);  // (9 - 2) * 0.5 + 2
  EXPECT_EQ(rule.getRelease(), 7.0);
}

TEST(OptReleaseRuleTwinFactory, RefusesALearnedRuleAndANegativeMaximum) {
  const auto forest = ReleaseRuleFactory::make(ReleaseRuleType::randomForest);
  EXPECT_THROW_TEXT((void)OptReleaseRuleTwinFactory::make(*forest, kMost), std::invalid_argument,
                    "OptReleaseRuleTwinFactory::make(): no optimisable twin for Liberação via "
                    "floresta aleatória");
  EXPECT_THROW_TEXT((void)OptReleaseRuleTwinFactory::make(ConstReleaseRule(), -0.1),
                    std::invalid_argument,
                    "OptReleaseRuleTwinFactory::make(): the maxRelease is a negative value");
  EXPECT_EQ(OptReleaseRuleTwinFactory::make(ConstReleaseRule(), 0.0)->getType().getType(),
            ReleaseRuleType::optConstant);
}
