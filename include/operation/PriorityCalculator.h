#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/PrioritySettings.h"
#include "operation/HydrologicalStateCalculator.h"

// The priority of an element of a priority run at a date: reservoirs and the concrete demands
// follow the hydrological state; any other element keeps the priority of its settings.
class PriorityCalculator {
 public:
  // 0 is the most important. Throws as ReservoirHydrologicalStateCalculator::getElementPriority.
  static unsigned int getPriority(const std::shared_ptr<Element>& element,
                                  const std::shared_ptr<PrioritySettings>& settings,
                                  const std::shared_ptr<HydrologicalStateCalculator>& calculator,
                                  ElementType type, const Interval& interval, const Date& date,
                                  unsigned int windowIndex);
};
