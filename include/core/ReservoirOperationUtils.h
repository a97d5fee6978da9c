#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Reservoir.h"

class ReservoirOperationUtils {
 public:
  // The volume with which the period of date begins, hm³: the initial volume at the first date
  // of interval (each window starts anew), otherwise the final volume of the period before.
  static double currentReservoirVolume(const std::shared_ptr<Reservoir>& reservoir,
                                       const Interval& interval, const Date& date,
                                       unsigned int windowIndex);
};
