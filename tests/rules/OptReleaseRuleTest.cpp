#include <gtest/gtest.h>

#include <functional>

#include "rules/ConstReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const Date kJanuary(2000, 1, 1);

OptConstReleaseRule constRule(double lower, double upper, bool toOpt) {
  OptConstReleaseRule rule;
  rule.setUpperRelease(upper);
  rule.setLowerRelease(lower);
  rule.setToOpt(toOpt);
  return rule;
}

Interval monthsOf2000() {
  return Interval(Date(2000, 1, 1), Date(2000, 5, 1), Vocabulary::of(Periodicity::monthly));
}

}  // namespace

TEST(OptConstReleaseRule, ScalesItsOneDecisionVariableBetweenTheBounds) {
  auto rule = constRule(10.0, 50.0, true);
  ASSERT_EQ(rule.getNumOfDecisionVars(), 1u);
  const std::pair<double, double> cases[] = {{0.0, 10.0}, {1.0, 50.0}, {0.25, 20.0}};  // 40x + 10
  for (const auto& [value, release] : cases) {
    rule.setDecisionVars({value});
    EXPECT_DOUBLE_EQ(rule.getRelease(kJanuary), release) << value;
  }
}

TEST(OptConstReleaseRule, WithoutItsFlagTakesNothingAndKeepsItsRelease) {
  auto rule = constRule(10.0, 50.0, false);
  rule.setRelease(7.0);
  EXPECT_EQ(rule.getNumOfDecisionVars(), 0u);
  rule.setDecisionVars({});
  EXPECT_DOUBLE_EQ(rule.getRelease(kJanuary), 7.0);
  EXPECT_THROW_TEXT(rule.setDecisionVars({0.5}), std::invalid_argument,
                    "OptConstReleaseRule::setDecisionVars: Invalid size of values vector");
  EXPECT_DOUBLE_EQ(rule.getRelease(kJanuary), 7.0);
}

TEST(OptConstReleaseRule, BoundSettersRefuseNegativeAndCrossedBounds) {
  auto rule = constRule(10.0, 50.0, true);
  const char* kOrderLower =
      "OptConstReleaseRule::setLowerRelease: The value of upperRelease must be greater than "
      "lowerRelease";
  const char* kOrderUpper =
      "OptConstReleaseRule::setUpperRelease: The value of upperRelease must be greater than "
      "lowerRelease";
  EXPECT_THROW_TEXT(rule.setLowerRelease(-1.0), std::invalid_argument,
                    "OptConstReleaseRule::setRelease(): the lowerRelease is a negative value");
  EXPECT_THROW_TEXT(rule.setUpperRelease(-1.0), std::invalid_argument,
                    "OptConstReleaseRule::setRelease(): the upperRelease is a negative value");
  EXPECT_THROW_TEXT(rule.setLowerRelease(50.1), std::invalid_argument, kOrderLower);
  EXPECT_THROW_TEXT(rule.setUpperRelease(9.9), std::invalid_argument, kOrderUpper);
  EXPECT_THROW_TEXT(rule.setLowerAndUpperRelease(5.0, 4.0), std::invalid_argument, kOrderUpper);
  EXPECT_THROW_TEXT(rule.setRelease(-0.5), std::invalid_argument,
                    "OptConstReleaseRule::setRelease(): the release is a negative value");
  EXPECT_DOUBLE_EQ(rule.getLowerRelease(), 10.0);
  EXPECT_DOUBLE_EQ(rule.getUpperRelease(), 50.0);
  rule.setLowerRelease(50.0 + 1e-7);  // equal within the tolerance of 1e-6
  rule.setLowerAndUpperRelease(0.0, 0.0);
  EXPECT_DOUBLE_EQ(rule.getUpperRelease(), 0.0);
}

TEST(OptConstReleaseRule, CopiesAndConvertsWithItsPresentNumbers) {
  auto rule = std::make_shared<OptConstReleaseRule>(constRule(10.0, 50.0, true));
  rule->setDecisionVars({0.5});  // 30 m³/s
  const auto copy = std::static_pointer_cast<OptConstReleaseRule>(rule->copy());
  EXPECT_EQ(copy->getNumOfDecisionVars(), 1u);
  EXPECT_DOUBLE_EQ(copy->getLowerRelease(), 10.0);
  EXPECT_DOUBLE_EQ(copy->getUpperRelease(), 50.0);
  EXPECT_DOUBLE_EQ(copy->getRelease(kJanuary), 30.0);

  const auto plain = std::dynamic_pointer_cast<ConstReleaseRule>(rule->convertToReleaseRule());
  ASSERT_TRUE(plain);
  EXPECT_DOUBLE_EQ(plain->getRelease(), 30.0);
}

TEST(OptPeriodicReleaseRule, OnlyFlaggedMonthsTakeValuesInMonthOrder) {
  OptPeriodicReleaseRule rule;
  rule.setRelease(std::vector<double>(12, 5.0));
  rule.setLowerAndUpperRelease(10.0, 30.0);
  rule.setToOpt(10, true);  // November
  rule.setToOpt(1, true);   // February
  ASSERT_EQ(rule.getNumOfDecisionVars(), 2u);
  rule.setDecisionVars({0.5, 1.0});  // February 20 * 0.5 + 10, November 30
  std::vector<double> expected(12, 5.0);
  expected[1] = 20.0;
  expected[10] = 30.0;
  EXPECT_EQ(rule.getRelease(), expected);
  EXPECT_DOUBLE_EQ(rule.getRelease(Date(2001, 2, 1)), 20.0);

  const auto plain = std::dynamic_pointer_cast<PeriodicReleaseRule>(rule.convertToReleaseRule());
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->getRelease(), expected);
}

TEST(OptPeriodicReleaseRule, RefusesBadMonthsIndicesSizesAndReleases) {
  OptPeriodicReleaseRule rule;
  using Case = std::pair<std::function<void()>, const char*>;
  const Case cases[] = {
      {[&] { rule.setRelease(13, 1.0); }, "OptPeriodicReleaseRule::setRelease(): invalid month value"},
      {[&] { rule.setRelease(0, 1.0); }, "OptPeriodicReleaseRule::setRelease(): invalid month value"},
      {[&] { rule.setRelease(3, -1.0); },
       "OptPeriodicReleaseRule::setRelease(): the release is a negative value"},
      {[&] { rule.setRelease(std::vector<double>(11, 1.0)); },
       "OptPeriodicReleaseRule::setRelease(): invalid size of vector releases"},
      {[&] { rule.getToOpt(12); }, "OptPeriodicReleaseRule::getToOpt(): invalid index value"},
      {[&] { rule.setToOpt(12, true); }, "OptPeriodicReleaseRule::setToOpt(): invalid index value"},
      {[&] { rule.setToOpt(std::vector<bool>(13, true)); },
       "OptPeriodicReleaseRule::setToOpt(): invalid size of vector toOpt"},
      {[&] { rule.setDecisionVars({0.1}); },
       "OptPeriodicReleaseRule::setDecisionVars: Invalid size of values vector"},
      {[&] { rule.setUpperRelease(-2.0); },
       "OptPeriodicReleaseRule::setRelease(): the upperRelease is a negative value"},
  };
  for (const auto& [call, text] : cases) {
    SCOPED_TRACE(text);
    EXPECT_THROW_TEXT(call(), std::invalid_argument, text);
  }
  EXPECT_EQ(rule.getRelease(), std::vector<double>(12, 0.0));
}

TEST(OptSerieReleaseRule, FlaggedDatesTakeAShareOfTheMaximumRelease) {
  OptSerieReleaseRule rule;
  rule.setSeriesInterval(monthsOf2000());
  rule.setMaxRelease(80.0);
  for (unsigned int month = 1; month <= 5; ++month) {
    rule.getReleaseSerie()->setValue(Date(2000, month, 1), 1.0);
    rule.getToOptSerie()->setValue(Date(2000, month, 1), month % 2 == 1 ? 1.0 : 0.0);
  }
  ASSERT_EQ(rule.getNumOfDecisionVars(), 3u);  // January, March and May
  rule.setDecisionVars({0.5, 0.25, 1.0});
  const double expected[] = {40.0, 1.0, 20.0, 1.0, 80.0};
  for (unsigned int month = 1; month <= 5; ++month) {
    EXPECT_DOUBLE_EQ(rule.getRelease(Date(2000, month, 1)), expected[month - 1]) << month;
  }

  const auto plain = std::dynamic_pointer_cast<SerieReleaseRule>(rule.convertToReleaseRule());
  ASSERT_TRUE(plain);
  rule.setDecisionVars({0.0, 0.0, 0.0});
  EXPECT_DOUBLE_EQ(plain->getRelease(Date(2000, 1, 1)), 40.0);  // a copy, not the rule's series
  EXPECT_EQ(plain->getType(), Vocabulary::of(ReleaseRuleType::serie));
}

TEST(OptSerieReleaseRule, RefusesMissingSeriesANegativeMaximumAndAWrongSize) {
  OptSerieReleaseRule rule;
  EXPECT_THROW_TEXT(rule.setReleaseSerie(nullptr), std::invalid_argument,
                    "OptSerieReleaseRule::setReleaseSerie(): the serie is nullptr");
  EXPECT_THROW_TEXT(rule.setToOptSerie(nullptr), std::invalid_argument,
                    "OptSerieReleaseRule::setToOptSerie(): the serie is nullptr");
  EXPECT_THROW_TEXT(rule.setMaxRelease(-1.0), std::invalid_argument,
                    "OptSerieReleaseRule::setMaxRelease(): the maxRelease is a negative value");
  EXPECT_THROW_TEXT(rule.setDecisionVars({1.0}), std::invalid_argument,
                    "OptSerieReleaseRule::setDecisionVars: Invalid size of values vector");
}

TEST(OptNoneReleaseRule, TakesNoVariableAndBecomesTheEmptyRule) {
  OptNoneReleaseRule rule;
  EXPECT_EQ(rule.getNumOfDecisionVars(), 0u);
  rule.setDecisionVars({});
  EXPECT_DOUBLE_EQ(rule.getRelease(kJanuary), 0.0);
  EXPECT_TRUE(std::dynamic_pointer_cast<NoneReleaseRule>(rule.convertToReleaseRule()));
  EXPECT_THROW_TEXT(rule.setDecisionVars({0.0}), std::invalid_argument,
                    "OptNoneReleaseRule::setDecisionVars: Invalid size of values vector");
}

namespace {

constexpr double kMark = OptReleaseRule::kDecisionMark;

}  // namespace

TEST(OptVolDepOneReleaseRule, MarkedCellsAreChosenAndRowsSortedWithTheirReleases) {
  OptVolDepOnePeriodicReleaseRule rule;
  rule.setMaxRelease(40.0);
  std::vector<double> fixed(12, 3.0);
  std::vector<double> chosenJanuary = fixed;
  chosenJanuary[0] = kMark;
  rule.setToOptVectorOfVolDepOneReleaseStruct({{kMark, chosenJanuary}, {50.0, fixed}});
  ASSERT_EQ(rule.getNumOfDecisionVars(), 2u);  // the first row's percentage and January release
  // Row one becomes 80 % with January 0.5 * 40; sorted, it now follows the fixed 50 % row.
  rule.setDecisionVars({0.8, 0.5});
  const auto& table = rule.getVectorOfVolDepOneReleaseStruct();
  ASSERT_EQ(table.size(), 2u);
  EXPECT_DOUBLE_EQ(table[0].percentage, 50.0);
  EXPECT_EQ(table[0].releases, fixed);
  EXPECT_DOUBLE_EQ(table[1].percentage, 80.0);
  EXPECT_DOUBLE_EQ(table[1].releases[0], 20.0);
  EXPECT_DOUBLE_EQ(table[1].releases[1], 3.0);

  rule.setReservoirDependencyId(4);
  const auto plain =
      std::dynamic_pointer_cast<VolDepOnePeriodicReleaseRule>(rule.convertToReleaseRule());
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->getType(), Vocabulary::of(ReleaseRuleType::periodicVolumeDependence1));
  EXPECT_EQ(plain->getVectorOfVolDepOneReleaseStruct(), table);
  EXPECT_EQ(plain->getReservoirDependencyId(), 4u);

  const auto copy = std::static_pointer_cast<OptVolDepOnePeriodicReleaseRule>(rule.copy());
  EXPECT_EQ(copy->getToOptVectorOfVolDepOneReleaseStruct(),
            rule.getToOptVectorOfVolDepOneReleaseStruct());
  EXPECT_EQ(copy->getVectorOfVolDepOneReleaseStruct(), table);
  EXPECT_DOUBLE_EQ(copy->getMaxRelease(), 40.0);
}

TEST(OptVolDepOneReleaseRule, FailuresNameTheOptimisableRule) {
  OptVolDepOneStaticReleaseRule rule;
  EXPECT_THROW_TEXT(rule.setReservoirDependency(nullptr), std::invalid_argument,
                    "OptVolDepOneReleaseRule::setReservoirDenpendency: the reservoir is nullptr");
  EXPECT_THROW_TEXT(rule.setVectorOfVolDepOneReleaseStruct({{10.0, {-1.0}}}), std::invalid_argument,
                    "OptVolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values of "
                    "releases must be positive");
  EXPECT_THROW_TEXT(rule.setVectorOfVolDepOneReleaseStruct({{60.0, {1.0}}, {50.0, {1.0}}}),
                    std::invalid_argument,
                    "OptVolDepOneReleaseRule:setVolumePeriodicReleaseStr(): The volume "
                    "percentage values must be in ascending order.");
  EXPECT_THROW_TEXT(rule.setToOptVectorOfVolDepOneReleaseStruct({{kMark, {-2.0}}}),
                    std::invalid_argument,
                    "OptVolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values of "
                    "releases must be positive");
  OptVolDepOnePeriodicReleaseRule periodic;
  EXPECT_THROW_TEXT(periodic.setToOptVectorOfVolDepOneReleaseStruct({{kMark, {1.0}}}),
                    std::invalid_argument,
                    "OptVolDepOnePeriodicReleaseRule: the releases vector must be the size 12.");
  rule.setToOptVectorOfVolDepOneReleaseStruct({{kMark, {kMark}}});
  EXPECT_THROW_TEXT(rule.setDecisionVars({0.5}), std::invalid_argument,
                    "OptVolDepOneReleaseRule::setDecisionVars: Invalid size of values vector");
  EXPECT_TRUE(rule.getVectorOfVolDepOneReleaseStruct().empty());
}

TEST(OptVolDepTwoReleaseRule, WalksBothListsThenTheNestAndSortsEachList) {
  OptVolDepTwoStaticReleaseRule rule;
  rule.setMaxRelease(10.0);
  VolDepTwoReleaseStruct marks;
  marks.volumePercentageD1 = {kMark, 40.0};
  marks.volumePercentageD2 = {30.0, kMark};
  marks.releases = {{{kMark, 1.0}, {2.0, 3.0}}};
  rule.setOptVolDepTwoReleaseStruct(marks);
  ASSERT_EQ(rule.getNumOfDecisionVars(), 3u);
  // D1 = {90, 40} and D2 = {30, 20} before sorting; the nest's marked cell is 0.5 * 10.
  rule.setDecisionVars({0.9, 0.2, 0.5});
  const auto& table = rule.getVolDepTwoReleaseStruct();
  EXPECT_EQ(table.volumePercentageD1, (std::vector<double>{40.0, 90.0}));
  EXPECT_EQ(table.volumePercentageD2, (std::vector<double>{20.0, 30.0}));
  // Rows swap (D1) and columns swap (D2): [[5, 1], [2, 3]] becomes [[3, 2], [1, 5]].
  EXPECT_EQ(table.releases,
            (std::vector<std::vector<std::vector<double>>>{{{3.0, 2.0}, {1.0, 5.0}}}));
  EXPECT_THROW_TEXT(rule.setReservoirDependency(nullptr, nullptr), std::invalid_argument,
                    "OptVolDepTwoReleaseRule::setReservoirDenpendency: the reservoirD1 is nullptr");
  marks.releases[0][1][1] = -1.0;
  EXPECT_THROW_TEXT(rule.setOptVolDepTwoReleaseStruct(marks), std::invalid_argument,
                    "OptVolDepTwoReleaseRule:setVolDepTwoReleaseStruct(): The releases has a "
                    "negative value.");
  const auto plain =
      std::dynamic_pointer_cast<VolDepTwoStaticReleaseRule>(rule.convertToReleaseRule());
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->getVolDepTwoReleaseStruct(), table);
}

TEST(OptHydrologicalStateReleaseRule, ZonesTakeValuesAsTheyAreAndReleasesScaled) {
  OptHydrologicalStateReleaseRule rule;
  rule.setStates(3, {0.3, 0.6}, {1.0, 2.0, 3.0});
  rule.setMaxRelease(50.0);
  rule.setOptStates({kMark, 0.7}, {kMark, 4.0, kMark}, {90.0, 80.0, 70.0});
  ASSERT_EQ(rule.getNumOfDecisionVars(), 3u);
  rule.setDecisionVars({0.25, 0.1, 1.0});  // zone 0.25; releases 0.1 * 50 and 1.0 * 50
  EXPECT_EQ(rule.getVectorOfProportionalZones(), (std::vector<double>{0.25, 0.7}));
  EXPECT_EQ(rule.getRelease(), (std::vector<double>{5.0, 4.0, 50.0}));
  const auto copy = std::static_pointer_cast<OptHydrologicalStateReleaseRule>(rule.copy());
  EXPECT_EQ(copy->getRequiredGuarantees(), (std::vector<double>{90.0, 80.0, 70.0}));
  EXPECT_EQ(copy->getRelease(), rule.getRelease());
  const auto plain =
      std::dynamic_pointer_cast<HydrologicalStateReleaseRule>(rule.convertToReleaseRule());
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->getType(), Vocabulary::of(ReleaseRuleType::hydrologicalState));
  EXPECT_EQ(plain->getRelease(), rule.getRelease());
}

TEST(OptHydrologicalStateReleaseRule, RefusesTablesOfAnotherNumberOfStates) {
  OptHydrologicalStateReleaseRule rule;
  rule.setStates(2, {0.5}, {1.0, 2.0});
  const std::string head = "OptHydrologicalStateReleaseRule::setStates(): ";
  EXPECT_THROW_TEXT(rule.setOptStates({}, {1.0, 2.0}, {1.0, 1.0}), std::invalid_argument,
                    head + "The size of proportionalZones must be numOfStates - 1");
  EXPECT_THROW_TEXT(rule.setOptStates({0.5}, {1.0}, {1.0, 1.0}), std::invalid_argument,
                    head + "The size of releases must be numOfStates");
  EXPECT_THROW_TEXT(rule.setOptStates({0.5}, {1.0, 2.0}, {1.0}), std::invalid_argument,
                    head + "The size of requiredGuarantees must be numOfStates");
  EXPECT_THROW_TEXT(rule.setOptStates({0.5}, {-1.0, 2.0}, {1.0, 1.0}), std::invalid_argument,
                    head + "All values of releases must be positive");
  EXPECT_THROW_TEXT(rule.setStates(2, {0.5}, {-1.0, 2.0}), std::invalid_argument,
                    head + "All values of releases must be positive");
  EXPECT_THROW_TEXT(rule.setMaxRelease(-1.0), std::invalid_argument,
                    "OptHydrologicalStateReleaseRule::setMaxRelease(): the maxRelease is a "
                    "negative value");
}
