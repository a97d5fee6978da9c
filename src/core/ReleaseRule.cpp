#include "core/ReleaseRule.h"

#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"
#include "core/Scenario.h"

void ReleaseRule::loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>&) {}

std::shared_ptr<ReleaseRule> ReleaseRule::copy() const {
  auto rule = makeBlank();
  rule->interval = interval;
  rule->windowIndex = windowIndex;
  rule->zeroContribution = zeroContribution;
  return rule;
}

double ReleaseRule::volumePercentage(const std::shared_ptr<Element>& reservoir,
                                     const Date& date) const {
  const auto dependency = std::static_pointer_cast<Reservoir>(reservoir);
  const double volume =
      ReservoirOperationUtils::currentReservoirVolume(dependency, interval, date, windowIndex);
  return volume * 100.0 / dependency->getReservoirInfo().maxVol;
}

bool ReleaseRule::withinLimit(double percent, double limit) {
  return NumericalUtils::subtractDoubles(percent, limit, kTolerance) <= 0.0;
}

bool ReleaseRule::isReservoir(const std::shared_ptr<Element>& element) {
  return element && element->getType() == ElementType::reservoir;
}

std::shared_ptr<Element> ReleaseRule::findReservoir(const Scenario& scenario, unsigned int id) {
  try {
    const auto& element = scenario.getElement(id);
    return isReservoir(element) ? element : nullptr;
  } catch (const std::invalid_argument&) {
    // The element was deleted since the rule was written: the rule forgets it.
    return nullptr;
  }
}
