#include "operation/PriorityCalculator.h"

#include "core/ElementSets.h"
#include "operation/ReservoirHydrologicalStateCalculator.h"

unsigned int PriorityCalculator::getPriority(
    const std::shared_ptr<Element>& element, const std::shared_ptr<PrioritySettings>& settings,
    const std::shared_ptr<HydrologicalStateCalculator>& calculator, ElementType type,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  if (ElementSets::demandsWithReservoir().count(type) == 0) return settings->getPriority();
  return ReservoirHydrologicalStateCalculator::getElementPriority(element, settings, calculator,
                                                                  interval, date, windowIndex);
}
