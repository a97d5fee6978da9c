#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "support/ExpectThrow.h"

namespace {

TEST(DateTest, JulianNumbersOfKnownDays) {
  const std::vector<std::pair<Date, unsigned int>> days = {
      {Date(1400, 1, 1), 2232400}, {Date(1582, 10, 15), 2299161}, {Date(1858, 11, 17), 2400001},
      {Date(1970, 1, 1), 2440588}, {Date(2000, 1, 1), 2451545},   {Date(9999, 12, 31), 5373484}};
  for (const auto& [date, julian] : days) EXPECT_EQ(julian, Date::julian(date)) << julian;
  unsigned char hour = 99;
  // The reform followed Thursday 4 October (old style) by Friday 15 October 1582.
  EXPECT_EQ(Date(1582, 10, 4), Date::gregorian(2299160, hour));
  EXPECT_EQ(Date(1582, 10, 15), Date::gregorian(2299161, hour));
  EXPECT_EQ(245154513u, Date::julianH(Date(2000, 1, 1), 13));
  EXPECT_EQ(Date(2000, 1, 1), Date::gregorianH(245154513, hour));
  EXPECT_EQ(13, hour);
}

// Walks every day the calendar supports: the Julian number must rise by exactly one per day and,
// from the first full Gregorian year on, convert back to the same date.
TEST(DateTest, JulianNumbersFollowEveryDayAndConvertBack) {
  Date date(1400, 1, 1);
  unsigned int expected = Date::julian(date);
  unsigned char hour = 7;
  for (; date != Date(9999, 12, 31); ++date, ++expected) {
    ASSERT_EQ(expected, Date::julian(date)) << date.toString("%Y-%m-%d");
    if (date.getYear() >= 1583) {
      ASSERT_EQ(date, Date::gregorian(expected, hour)) << expected;
      ASSERT_EQ(0, hour);
    }
  }
  EXPECT_EQ(5373484u, expected);
}

TEST(DateTest, ComparesByYearThenMonthThenDay) {
  const std::vector<Date> sorted = {Date(1999, 12, 31), Date(2000, 1, 31), Date(2000, 2, 1),
                                    Date(2000, 2, 2), Date(2001, 1, 1)};
  const auto relations = [](const auto& a, const auto& b) {
    return std::vector<bool>{(a == b), (a != b), (a < b), (a <= b), (a > b), (a >= b)};
  };
  for (size_t i = 0; i < sorted.size(); ++i) {
    for (size_t j = 0; j < sorted.size(); ++j) {
      EXPECT_EQ(relations(i, j), relations(sorted[i], sorted[j])) << i << " vs " << j;
    }
  }
}

TEST(DateTest, DayOperatorsCrossMonthsAndYears) {
  Date date(2000, 2, 28);
  EXPECT_EQ(Date(2000, 2, 29), date + 1);
  EXPECT_EQ(Date(2000, 3, 1), date += 2);
  EXPECT_EQ(Date(2000, 2, 29), --date);
  EXPECT_EQ(Date(2001, 1, 1), ++Date(2000, 12, 31));
}

TEST(DateTest, TextRoundTripsInEveryFormat) {
  const std::vector<std::tuple<std::string, std::string, Date>> cases = {
      {"%d/%m/%Y", "05/03/2021", Date(2021, 3, 5)},
      {"%m/%Y", "03/2021", Date(2021, 3, 1)},
      {"%Y", "2021", Date(2021, 1, 1)},
      {"%Y-%m-%d", "1400-01-01", Date(1400, 1, 1)},
      {"%d-%m-%Y", "31-12-9999", Date(9999, 12, 31)}};
  for (const auto& [format, text, date] : cases) {
    EXPECT_EQ(text, date.toString(format));
    EXPECT_EQ(date, Date::fromString(text, format)) << format;
  }
}

TEST(DateTest, FailuresCarryTheirTexts) {
  std::vector<std::pair<std::function<void()>, std::string>> cases = {
      {[] { Date(0, 13, 40); }, "Invalid year."},
      {[] { Date(2021, 0, 1); }, "Invalid month."},
      {[] { Date(2021, 2, 29); }, "Invalid day."},
      {[] { Date().setYear(0); }, "Invalid year"},
      {[] { Date().setMonth(13); }, "Invalid month"},
      {[] { Date().setDay(29, 2, 2100); }, "Invalid day"},
      {[] { Date::julianH(Date(), 24); }, "Invalid hour"},
      {[] { Date(1399, 12, 31).toString("%Y"); }, "Invalid date format."},
      {[] { Date(65536 + 2000, 1, 1).toString("%Y"); }, "Invalid date format."}};
  for (std::string text : {"not-a-date-time", "-infinity", "+infinity", "minimum-date-time",
                           "maximum-date-time", "abc", "", "2021-02-30", "2021", "2021/03/05",
                           "2021-03-05x", " 2021-03-05", "1399-12-31"}) {
    cases.push_back(
        {[text] { Date::fromString(text, "%Y-%m-%d"); }, "Invalid date/format matching."});
    cases.push_back({[text] { Date::fromString(text, "%m/%Y"); }, "Invalid date/format matching."});
  }
  for (size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_THROW_TEXT(cases[i].first(), std::invalid_argument, cases[i].second);
  }
}

}  // namespace
