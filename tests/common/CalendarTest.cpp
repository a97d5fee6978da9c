#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/Calendar.h"
#include "common/Interval.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

TEST(CalendarTest, MonthLengthsFollowTheLeapRule) {
  EXPECT_EQ(29u, Calendar::daysInMonth(2000, 2));
  EXPECT_EQ(28u, Calendar::daysInMonth(1900, 2));
  EXPECT_EQ(29u, Calendar::daysInMonth(2004, 2));
  EXPECT_EQ(30u, Calendar::daysInMonth(2001, 4));
  EXPECT_EQ(0u, Calendar::daysInMonth(2001, 0));
  EXPECT_EQ(365u, Calendar::daysInYear(1900));
}

// A date on the last day of its month snaps to the last day of the target month.
TEST(CalendarTest, MonthAndYearStepsSnapToMonthEnds) {
  const std::vector<std::pair<Date, unsigned int>> monthSteps = {
      {Date(2000, 1, 31), 29},   // to 29 Feb
      {Date(2000, 2, 29), 31},   // to 31 Mar
      {Date(2001, 3, 31), 30},   // to 30 Apr
      {Date(2001, 4, 30), 31},   // to 31 May
      {Date(2001, 1, 15), 31},   // to 15 Feb
      {Date(2001, 1, 30), 29}};  // to 28 Feb, clipped
  for (const auto& [date, days] : monthSteps) {
    EXPECT_EQ(days, Calendar::incMonth(date)) << date.toString("%Y-%m-%d");
  }
  EXPECT_EQ(366u, Calendar::incYear(Date(1999, 2, 28)));  // to 29 Feb 2000
  EXPECT_EQ(365u, Calendar::incYear(Date(2000, 2, 29)));  // to 28 Feb 2001
  EXPECT_EQ(Date(2000, 2, 29), Calendar::decMonths(Date(2000, 3, 31), 1));
  EXPECT_EQ(Date(2000, 2, 29), Calendar::decMonths(Date(2000, 3, 30), 1));
  EXPECT_EQ(Date(2000, 1, 31), Calendar::decMonths(Date(2000, 2, 29), 1));
  // Month 9999 * 12 + 11 less 50000 is month 69999 = 5833 * 12 + 3: April 5833.
  EXPECT_EQ(Date(5833, 4, 30), Calendar::decMonths(Date(9999, 12, 31), 50000));
  EXPECT_EQ(Date(1999, 2, 28), Calendar::decYears(Date(2000, 2, 29), 1));
  EXPECT_EQ(Date(2000, 2, 29), Calendar::decYears(Date(2001, 2, 28), 1));
}

TEST(CalendarTest, OneStepOfEachPeriodicity) {
  const Date date(2000, 2, 29);
  const auto interval = [](Periodicity periodicity) {
    return Interval(Date(), Date(), Vocabulary::of(periodicity));
  };
  EXPECT_EQ(1u, Calendar::incInterval(date, interval(Periodicity::daily)));
  EXPECT_EQ(31u, Calendar::incInterval(date, interval(Periodicity::monthly)));
  EXPECT_EQ(365u, Calendar::incInterval(date, interval(Periodicity::yearly)));
  EXPECT_EQ(Date(2000, 2, 28), Calendar::decDate(date, interval(Periodicity::daily)));
  EXPECT_EQ(Date(2000, 1, 31), Calendar::decDate(date, interval(Periodicity::monthly)));
  EXPECT_EQ(Date(1999, 2, 28), Calendar::decDate(date, interval(Periodicity::yearly)));
  const Interval unknown(Date(), Date(), EnumPeriodicity(Periodicity(7), "Semanal", "%d/%m/%Y"));
  EXPECT_THROW_TEXT(Calendar::incInterval(date, unknown), std::invalid_argument,
                    "Invalid time Interval.");
  EXPECT_THROW(Calendar::decDate(date, unknown), std::out_of_range);
}

TEST(CalendarTest, ArithmeticFailsOutsideYears1400To9999) {
  const std::string inc = "Invalid date increment", dec = "Invalid date decrement";
  const std::vector<std::pair<std::function<void()>, std::string>> cases = {
      {[] { ++Date(9999, 12, 31); }, inc},
      {[] { Date(1399, 12, 31) + 1; }, inc},
      {[] { Date(65536 + 1400, 1, 1) + 1; }, inc},  // 1400 once cut to 16 bits
      {[] { Date(9999, 12, 31) + 4294967295u; }, inc},
      {[] { Calendar::incMonth(Date(9999, 12, 15)); }, inc},
      {[] { Calendar::incYear(Date(9999, 1, 1)); }, inc},
      {[] { Calendar::daysInMonth(2000, 13); }, inc},
      {[] { --Date(1400, 1, 1); }, dec},
      {[] { Calendar::decMonths(Date(1400, 1, 31), 1); }, dec},
      {[] { Calendar::decMonths(Date(9999, 12, 31), 4294967295u); }, dec},
      {[] { Calendar::decYears(Date(10000, 6, 1), 1); }, dec}};
  for (size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_THROW_TEXT(cases[i].first(), std::invalid_argument, cases[i].second);
  }
}

TEST(CalendarTest, TimeStampStartsWithTodaysDate) {
  const std::string before = Calendar::getCurrentDate().toString("%Y-%m-%d");
  const std::string stamp = Calendar::getTimeStamp();
  const std::string after = Calendar::getCurrentDate().toString("%Y-%m-%d");
  EXPECT_TRUE(stamp.rfind(before, 0) == 0 || stamp.rfind(after, 0) == 0) << stamp;
}

}  // namespace
