#pragma once

#include <utility>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "vocabulary/EnumTypes.h"

// The intervals of the windows of a run.
class IntervalWindowed {
 public:
  // The kept windows of windowSize periods that end within interval, in order; the whole interval
  // for another execution type or a periodicity other than monthly. Throws std::invalid_argument
  // "makeIntervals() - interval period < window size" when the interval is shorter than a window,
  // whatever the execution type.
  static std::vector<Interval> makeIntervals(const Interval& interval,
                                             const std::vector<std::pair<Date, bool>>& yearsDate,
                                             unsigned int windowSize, ExecutionType executionType);
  // The number of intervals makeIntervals gives.
  static std::size_t sizeIntervals(const Interval& interval,
                                   const std::vector<std::pair<Date, bool>>& yearsDate,
                                   unsigned int windowSize, ExecutionType executionType);
  // The date steps periods of interval's periodicity after date.
  static Date stepForward(Date date, unsigned int steps, const Interval& interval);
};
