#include <gtest/gtest.h>

#include <functional>

#include "rules/ConstReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
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
