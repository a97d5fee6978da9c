#include "common/Interval.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "common/IntervalManager.h"

Interval::Interval() = default;

Interval::Interval(const Date& begin, const Date& end, const EnumPeriodicity& periodicity)
    : periodicity(periodicity), begin(begin), end(end) {
  if (end < begin) throw std::invalid_argument("Invalid configuration value begin > end.");
}

unsigned int Interval::period() const {
  static const std::map<Periodicity, std::function<unsigned int(const Interval&)>> counters = {
      {Periodicity::daily, IntervalManager::numberOfDays},
      {Periodicity::monthly, IntervalManager::numberOfMonths},
      {Periodicity::yearly, IntervalManager::numberOfYears},
  };
  return counters.at(periodicity.getType())(*this);
}

bool Interval::operator==(const Interval& other) const {
  return periodicity == other.periodicity && begin == other.begin && end == other.end;
}

bool Interval::operator!=(const Interval& other) const { return !(*this == other); }
