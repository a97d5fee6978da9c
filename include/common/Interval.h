#pragma once

#include "common/Date.h"
#include "vocabulary/EnumPeriodicity.h"

// A span of dates, both ends included, walked in steps of its periodicity. The default interval
// is monthly with both ends at 1 January 1400.
class Interval {
 public:
  Interval();
  // Throws std::invalid_argument "Invalid configuration value begin > end." when end < begin.
  Interval(const Date& begin, const Date& end, const EnumPeriodicity& periodicity);

  const Date& getBegin() const { return begin; }
  const Date& getEnd() const { return end; }
  const EnumPeriodicity& getPeriodicity() const { return periodicity; }

  // Number of periods (steps of the periodicity) in the interval, both ends counted.
  unsigned int period() const;

  bool operator==(const Interval& other) const;
  bool operator!=(const Interval& other) const;

 private:
  EnumPeriodicity periodicity;
  Date begin;
  Date end;
};
