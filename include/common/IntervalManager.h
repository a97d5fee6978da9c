#pragma once

#include <vector>

#include "common/Interval.h"

// Counting and comparing intervals.
class IntervalManager {
 public:
  // julian(end) + 1 - julian(begin).
  static unsigned int numberOfDays(const Interval& interval);
  // Months from the month of begin to the month of end, both counted, whatever the days.
  static unsigned int numberOfMonths(const Interval& interval);
  // year(end) + 1 - year(begin).
  static unsigned int numberOfYears(const Interval& interval);
  // Both ends inclusive.
  static bool isIntervalInside(const Interval& outer, const Interval& inner);
  static bool isDateInside(const Interval& interval, const Date& date);
  // The latest begin and the earliest end of all the intervals, with the first one's periodicity.
  static Interval intersection(const std::vector<Interval>& intervals);
};
