#pragma once

#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "common/Serie.h"
#include "core/Element.h"
#include "core/PrioritySettings.h"
#include "operation/HydrologicalStateCalculator.h"

// Where an element of a priority run takes its priority and goals from, by the hydrological
// state type of the run: its own settings and input series ("Sem"), the pair of the system's
// state ("Padrão"), or the zone its reservoir is in ("Por reservatório", and "Por reservatório
// mensal" by month). One table per question maps each type to its answer.
class ReservoirHydrologicalStateCalculator {
 public:
  using Calculator = std::shared_ptr<HydrologicalStateCalculator>;
  using Settings = std::shared_ptr<PrioritySettings>;

  // The element's priority at date. Throws std::invalid_argument
  // "ReservoirHydrologicalStateCalculator::getElementPriority(): invalid hydrological state type"
  // for a type outside the table.
  static unsigned int getElementPriority(const std::shared_ptr<Element>& element,
                                         const Settings& settings, const Calculator& calculator,
                                         const Interval& interval, const Date& date,
                                         unsigned int windowIndex);
  // The reservoir's target volume series, fraction of the maximum volume. Throws
  // std::invalid_argument "ReservoirHydrologicalStateCalculator::getTargetVolume(): invalid
  // hydrological state type" for a type outside the table.
  static std::shared_ptr<Serie> getTargetVolume(const std::shared_ptr<Element>& element,
                                                const Settings& settings,
                                                const Calculator& calculator,
                                                const Interval& interval, const Date& date,
                                                unsigned int windowIndex);
  // The demand's goal series, m³/s. Throws std::invalid_argument
  // "ReservoirHydrologicalStateCalculator::getWaterDemand(): invalid hydrological state type"
  // for a type outside the table.
  static std::shared_ptr<Serie> getWaterDemand(const std::shared_ptr<Element>& element,
                                               const Settings& settings,
                                               const Calculator& calculator);
  // The tops of the reservoir's monthly zones, hm³: twelve rows (January first), each the
  // running sum of the shares times the maximum volume, as long as January's list. Throws
  // std::out_of_range before the monthly zones exist.
  static std::vector<std::vector<double>> getVolumesHydrologicalStatePerReservoirMonthly(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings);
};
