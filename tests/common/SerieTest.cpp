#include <gtest/gtest.h>

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
