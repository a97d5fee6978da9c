#include "core/IntervalWindowed.h"

#include <stdexcept>

#include "common/Calendar.h"

std::vector<Interval> IntervalWindowed::makeIntervals(
    const Interval& interval, const std::vector<std::pair<Date, bool>>& yearsDate,
    unsigned int windowSize, ExecutionType executionType) {
  if (interval.period() < windowSize) {
    throw std::invalid_argument("makeIntervals() - interval period < window size");
  }
  if (interval.getPeriodicity().getType() != Periodicity::monthly ||
      executionType != ExecutionType::windowed) {
    return {interval};
  }
  std::vector<Interval> windows;
  for (const auto& [start, checked] : yearsDate) {
    const Date end = stepForward(start, windowSize - 1, interval);
    if (end <= interval.getEnd() && checked) {
      windows.emplace_back(start, end, interval.getPeriodicity());
    }
  }
  return windows;
}

std::size_t IntervalWindowed::sizeIntervals(const Interval& interval,
                                            const std::vector<std::pair<Date, bool>>& yearsDate,
                                            unsigned int windowSize, ExecutionType executionType) {
  return makeIntervals(interval, yearsDate, windowSize, executionType).size();
}

Date IntervalWindowed::stepForward(Date date, unsigned int steps, const Interval& interval) {
  for (unsigned int i = 0; i < steps; ++i) date += Calendar::incInterval(date, interval);
  return date;
}
