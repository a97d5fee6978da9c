#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "common/Calendar.h"
#include "common/Interval.h"
#include "common/IntervalManager.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const EnumPeriodicity& daily = Vocabulary::of(Periodicity::daily);
const EnumPeriodicity& monthly = Vocabulary::of(Periodicity::monthly);
const EnumPeriodicity& yearly = Vocabulary::of(Periodicity::yearly);

TEST(IntervalTest, PeriodsCountBothEnds) {
  EXPECT_EQ(Interval(Date(1400, 1, 1), Date(1400, 1, 1), monthly), Interval());
  EXPECT_EQ(1u, Interval().period());
  EXPECT_EQ(1u, Interval(Date(2000, 2, 29), Date(2000, 2, 29), daily).period());
  EXPECT_EQ(366u, Interval(Date(2000, 1, 1), Date(2000, 12, 31), daily).period());
  EXPECT_EQ(12u, Interval(Date(2000, 1, 1), Date(2000, 12, 1), monthly).period());
  EXPECT_EQ(2u, Interval(Date(2000, 1, 31), Date(2000, 2, 1), monthly).period());
  EXPECT_EQ(16u, Interval(Date(1999, 11, 1), Date(2001, 2, 1), monthly).period());
  EXPECT_EQ(2u, Interval(Date(1999, 12, 31), Date(2000, 1, 1), yearly).period());
}

// Each step is computed from the current date, so a monthly walk from a month's first or last
// day stays on first or last days.
TEST(IntervalTest, MonthlyStepsKeepFirstAndLastDays) {
  for (const unsigned int firstDay : {1u, 31u}) {
    const Interval interval(Date(2000, 1, firstDay), Date(2000, 12, 31), monthly);
    unsigned int steps = 0;
    for (Date date = interval.getBegin(); date <= interval.getEnd();
         date += Calendar::incInterval(date, interval), ++steps) {
      EXPECT_EQ(firstDay == 1 ? 1 : date.daysInMonth(), date.getDay()) << firstDay;
      EXPECT_EQ(steps + 1, date.getMonth()) << firstDay;
    }
    EXPECT_EQ(interval.period(), steps);
  }
}

TEST(IntervalTest, ContainmentIncludesBothEnds) {
  const Interval year(Date(2000, 1, 1), Date(2000, 12, 31), monthly);
  EXPECT_TRUE(IntervalManager::isDateInside(year, Date(2000, 1, 1)));
  EXPECT_TRUE(IntervalManager::isDateInside(year, Date(2000, 12, 31)));
  EXPECT_FALSE(IntervalManager::isDateInside(year, Date(2001, 1, 1)));
  EXPECT_TRUE(IntervalManager::isIntervalInside(year, year));
  EXPECT_FALSE(IntervalManager::isIntervalInside(
      year, Interval(Date(1999, 12, 31), Date(2000, 6, 1), monthly)));
}

TEST(IntervalTest, IntersectionTakesLatestBeginAndEarliestEnd) {
  const Interval first(Date(2000, 1, 1), Date(2000, 12, 31), yearly);
  const Interval second(Date(1999, 3, 1), Date(2000, 10, 15), daily);
  const Interval third(Date(2000, 2, 1), Date(2001, 1, 1), monthly);
  EXPECT_EQ(Interval(Date(2000, 2, 1), Date(2000, 10, 15), yearly),
            IntervalManager::intersection({first, second, third}));
}

TEST(IntervalTest, FailuresCarryTheirTexts) {
  const Interval january(Date(2000, 1, 1), Date(2000, 1, 31), daily);
  const Interval february(Date(2000, 2, 1), Date(2000, 2, 28), daily);
  const std::string reversed = "Invalid configuration value begin > end.";
  EXPECT_THROW_TEXT(Interval(Date(2000, 1, 2), Date(2000, 1, 1), daily), std::invalid_argument,
                    reversed);
  EXPECT_THROW_TEXT(IntervalManager::intersection({january, february}), std::invalid_argument,
                    reversed);
  EXPECT_THROW_TEXT(IntervalManager::intersection({}), std::invalid_argument,
                    "IntervalManager::intersection(): no interval");
}

}  // namespace
