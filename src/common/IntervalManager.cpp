#include "common/IntervalManager.h"

#include <algorithm>
#include <stdexcept>

unsigned int IntervalManager::numberOfDays(const Interval& interval) {
  return Date::julian(interval.getEnd()) + 1 - Date::julian(interval.getBegin());
}

unsigned int IntervalManager::numberOfMonths(const Interval& interval) {
  const Date& begin = interval.getBegin();
  const Date& end = interval.getEnd();
  // Ordered so that no intermediate goes below zero: end is never earlier than begin.
  return (end.getYear() - begin.getYear()) * 12 + end.getMonth() + 1 - begin.getMonth();
}

unsigned int IntervalManager::numberOfYears(const Interval& interval) {
  return interval.getEnd().getYear() + 1 - interval.getBegin().getYear();
}

bool IntervalManager::isIntervalInside(const Interval& outer, const Interval& inner) {
  return outer.getBegin() <= inner.getBegin() && inner.getEnd() <= outer.getEnd();
}

bool IntervalManager::isDateInside(const Interval& interval, const Date& date) {
  return interval.getBegin() <= date && date <= interval.getEnd();
}

Interval IntervalManager::intersection(const std::vector<Interval>& intervals) {
  if (intervals.empty()) {
    throw std::invalid_argument("IntervalManager::intersection(): no interval");
  }
  Date begin = intervals.front().getBegin();
  Date end = intervals.front().getEnd();
  for (const Interval& interval : intervals) {
    begin = std::max(begin, interval.getBegin());
    end = std::min(end, interval.getEnd());
  }
  return Interval(begin, end, intervals.front().getPeriodicity());
}
