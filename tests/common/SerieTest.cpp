#include <gtest/gtest.h>

#include <map>

#include "common/Serie.h"
#include "vocabulary/Vocabulary.h"

namespace {

Interval monthly(unsigned int y1, unsigned int m1, unsigned int d1, unsigned int y2,
                 unsigned int m2, unsigned int d2) {
  return Interval(Date(y1, m1, d1), Date(y2, m2, d2), Vocabulary::of(Periodicity::monthly));
}

Serie flowSerie(const Interval& interval) {
  return Serie(interval, Vocabulary::of(SerieType::inflow), Vocabulary::of(Unit::cubicMetresPerSecond));
}

}  // namespace

TEST(Serie, MissingValuesReadAsTheEmptyMark) {
  Serie serie = flowSerie(monthly(2000, 1, 1, 2000, 12, 1));
  EXPECT_EQ(serie.getValue(Date(2000, 3, 1)), -999.0);
  EXPECT_TRUE(serie.isEmpty());
  serie.fill(-999.0);
  EXPECT_EQ(serie.size(), 12u);
  EXPECT_TRUE(serie.isEmpty());
  serie.setValue(Date(2000, 5, 1), 0.0);
  EXPECT_FALSE(serie.isEmpty());
}

TEST(Serie, ValuesOutsideTheIntervalAreKept) {
  Serie serie = flowSerie(monthly(2000, 1, 1, 2000, 12, 1));
  serie.setValue(Date(1999, 7, 15), 4.5);
  EXPECT_EQ(serie.getValue(Date(1999, 7, 15)), 4.5);
  int julian = -1;
  EXPECT_EQ(serie.getValue(Date(1999, 7, 15), julian), 4.5);
  EXPECT_EQ(julian, static_cast<int>(Date::julian(Date(1999, 7, 15))));
  julian = 7;
  EXPECT_EQ(serie.getValue(Date(1999, 7, 16), julian), -999.0);
  EXPECT_EQ(julian, 7);
}

TEST(Serie, FillFollowsTheMonthEnds) {
  Serie serie = flowSerie(monthly(2000, 1, 31, 2000, 4, 30));
  serie.fill(2.0);
  // 31 Jan, 29 Feb (leap), 31 Mar, 30 Apr.
  EXPECT_EQ(serie.size(), 4u);
  for (const Date& date : {Date(2000, 1, 31), Date(2000, 2, 29), Date(2000, 3, 31), Date(2000, 4, 30)}) {
    EXPECT_EQ(serie.getValue(date), 2.0);
  }
}

TEST(Serie, CopiesAreIndependent) {
  Serie serie = flowSerie(monthly(2000, 1, 1, 2000, 3, 1));
  serie.fill(1.0);
  std::shared_ptr<Serie> copy = serie.copy();
  copy->setValue(Date(2000, 2, 1), 9.0);
  EXPECT_EQ(serie.getValue(Date(2000, 2, 1)), 1.0);
  EXPECT_EQ(copy->getName(), "Vazão afluente");
  serie.copyFrom(copy);
  EXPECT_EQ(serie.getValue(Date(2000, 2, 1)), 9.0);
  serie.clear();
  EXPECT_EQ(serie.size(), 0u);
  EXPECT_EQ(serie.getInterval(), monthly(2000, 1, 1, 2000, 3, 1));
}

// Reads remember where the last one found its date; whatever order reads and writes come in,
// every read must give what a plain map of the same writes gives.
TEST(Serie, ReadsInAnyOrderAgreeWithAPlainMap) {
  Serie serie = flowSerie(monthly(2000, 1, 1, 2009, 12, 1));
  std::map<unsigned int, double> expected;
  unsigned int state = 7;
  const auto next = [&state](unsigned int bound) {
    state = state * 1103515245u + 12345u;
    return (state >> 8) % bound;
  };
  const unsigned int first = Date::julian(Date(2000, 1, 1));
  for (int step = 0; step < 4000; ++step) {
    // Mostly dates just after the last one, as a run writes them; sometimes any date, which
    // overwrites or inserts in the middle.
    const unsigned int julian = step % 5 == 0
                                    ? first + next(400)
                                    : (expected.empty() ? first : expected.rbegin()->first + 1);
    const double value = static_cast<double>(step) + 0.25;
    serie.setValue(julian, value);
    expected[julian] = value;
    const unsigned int probe = first + next(420);
    const auto it = expected.find(probe);
    int found = -1;
    unsigned char hour = 0;
    const double read = serie.getValue(Date::gregorian(probe, hour), found);
    ASSERT_EQ(read, it == expected.end() ? -999.0 : it->second) << "step " << step;
    ASSERT_EQ(found, it == expected.end() ? -1 : static_cast<int>(probe)) << "step " << step;
  }
  ASSERT_EQ(serie.size(), expected.size());
  auto mine = serie.getMapOfJulianToValues().begin();
  for (const auto& entry : expected) {
    EXPECT_EQ(mine->first, entry.first);
    EXPECT_EQ(mine->second, entry.second);
    ++mine;
  }
}

TEST(Serie, ReadsWalkForwardAndBackAcrossAnOverwrittenDate) {
  Serie serie = flowSerie(monthly(2000, 1, 1, 2000, 6, 1));
  serie.fill(1.0);
  serie.setValue(Date(2000, 3, 1), 3.0);
  // Forward, as a run reads, then backward, as a previous date is read.
  const double forward[] = {1.0, 1.0, 3.0, 1.0, 1.0, 1.0};
  for (unsigned int month = 1; month <= 6; ++month) {
    EXPECT_EQ(serie.getValue(Date(2000, month, 1)), forward[month - 1]);
  }
  for (unsigned int month = 6; month >= 1; --month) {
    EXPECT_EQ(serie.getValue(Date(2000, month, 1)), forward[month - 1]);
  }
  // A copy starts its reads anew on its own values.
  const auto copy = serie.copy();
  copy->setValue(Date(2000, 6, 1), 6.0);
  EXPECT_EQ(copy->getValue(Date(2000, 6, 1)), 6.0);
  EXPECT_EQ(serie.getValue(Date(2000, 6, 1)), 1.0);
  copy->clear();
  EXPECT_EQ(copy->getValue(Date(2000, 6, 1)), -999.0);
}
