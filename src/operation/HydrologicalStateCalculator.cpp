#include "operation/HydrologicalStateCalculator.h"

#include "common/NumericalUtils.h"
#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"
#include "core/Scenario.h"
#include "hydrology/HydrologicalBalance.h"

namespace {

constexpr double kTolerance = 1e-06;

}  // namespace

HydrologicalStateCalculator::HydrologicalStateCalculator(
    const std::shared_ptr<HydrologicalStateConfiguration>& configuration,
    const SettingsManager& settingsManager, const Elements& reservoirs, bool zeroContribution)
    : reservoirs(reservoirs),
      settingsManager(&settingsManager),
      zeroContribution(zeroContribution),
      hydrologicalStateType(configuration->getCurrentHydrologicalStateType().getId()) {
  calcVolMaxReservoirs();
  generateZones(*configuration);
}

std::shared_ptr<PriorityReservoirSettings> HydrologicalStateCalculator::settingsOf(
    const std::shared_ptr<Element>& reservoir) const {
  return Scenario::getSettings<PriorityReservoirSettings>(reservoir, *settingsManager);
}

void HydrologicalStateCalculator::calcVolMaxReservoirs() {
  volMaxReservoirs = 0.0;
  for (const auto& reservoir : reservoirs) {
    if (settingsOf(reservoir)->getIsHydrologicalStateSystem()) {
      volMaxReservoirs += std::static_pointer_cast<Reservoir>(reservoir)->getReservoirInfo().maxVol;
    }
  }
}

void HydrologicalStateCalculator::generateZones(
    const HydrologicalStateConfiguration& configuration) {
  zones.clear();
  double lower = 0.0;
  for (double share : configuration.getXValues()) {
    const double upper = lower + volMaxReservoirs * share;
    zones.push_back({lower, upper});
    lower = upper;
  }
}

double HydrologicalStateCalculator::availableVolume(const std::shared_ptr<Element>& reservoir,
                                                    const Interval& interval, const Date& date,
                                                    unsigned int windowIndex) const {
  const double stored = ReservoirOperationUtils::currentReservoirVolume(
      std::static_pointer_cast<Reservoir>(reservoir), interval, date, windowIndex);
  if (zeroContribution) return stored;
  const auto balance = HydrologicalBalanceFactory::make(interval.getPeriodicity().getType());
  return stored +
         balance->hm3(date,
                      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(date));
}

void HydrologicalStateCalculator::updateHydrologicStateValue(const Date& date,
                                                             const Interval& interval,
                                                             unsigned int windowIndex) {
  if (hydrologicalStateType != static_cast<int>(HydrologicalStateType::standard)) return;
  double total = 0.0;
  for (const auto& reservoir : reservoirs) {
    if (settingsOf(reservoir)->getIsHydrologicalStateSystem()) {
      total += availableVolume(reservoir, interval, date, windowIndex);
    }
  }
  calcHydrologicIndex(total);
}

void HydrologicalStateCalculator::calcHydrologicIndex(double volume) {
  hydrologicIndex = static_cast<unsigned int>(zones.size());
  for (std::size_t i = 0; i < zones.size(); ++i) {
    if (NumericalUtils::subtractDoubles(volume, zones[i].upper, kTolerance) <= 0.0) {
      hydrologicIndex = static_cast<unsigned int>(i);
      return;
    }
  }
}

unsigned int HydrologicalStateCalculator::getPriority(
    const std::shared_ptr<PrioritySettings>& settings) const {
  return settings->getPrioritySeries().at(hydrologicIndex).first;
}

std::shared_ptr<Serie> HydrologicalStateCalculator::getTargetVolume(
    const std::shared_ptr<PrioritySettings>& settings) const {
  return settings->getPrioritySeries().at(hydrologicIndex).second;
}

std::shared_ptr<Serie> HydrologicalStateCalculator::getWaterDemand(
    const std::shared_ptr<PrioritySettings>& settings) const {
  return settings->getPrioritySeries().at(hydrologicIndex).second;
}

HydrologicalStateCalculator::HydrologicalZone HydrologicalStateCalculator::zoneAmong(
    const PriorityReservoirSettings::Zones& candidates, const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  if (candidates.empty()) {
    return {0.0, settings->getPriority(), element->getInputSerie(SerieType::targetVolume)};
  }
  const double volume = availableVolume(element, interval, date, windowIndex);
  const double maxVol = std::static_pointer_cast<Reservoir>(element)->getReservoirInfo().maxVol;
  double top = 0.0;
  for (const auto& zone : candidates) {
    top += zone.value;
    if (NumericalUtils::subtractDoubles(volume, top * maxVol, kTolerance) < 0.0) return zone;
  }
  return candidates.back();
}

HydrologicalStateCalculator::HydrologicalZone
HydrologicalStateCalculator::getCurrentZonePerReservoir(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return zoneAmong(settings->getVectorOfHydrologicalZones(), element, settings, interval, date,
                   windowIndex);
}

HydrologicalStateCalculator::HydrologicalZone
HydrologicalStateCalculator::getCurrentZonePerReservoirMonthly(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return zoneAmong(settings->getVectorOfHydrologicalZonesMonthly(date.getMonth() - 1), element,
                   settings, interval, date, windowIndex);
}

unsigned int HydrologicalStateCalculator::getPriorityPerReservoir(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return getCurrentZonePerReservoir(element, settings, interval, date, windowIndex).priority;
}

unsigned int HydrologicalStateCalculator::getPriorityPerReservoirMonthly(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return getCurrentZonePerReservoirMonthly(element, settings, interval, date, windowIndex).priority;
}

std::shared_ptr<Serie> HydrologicalStateCalculator::getTargetPerReservoirVolume(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return getCurrentZonePerReservoir(element, settings, interval, date, windowIndex).serie;
}

std::shared_ptr<Serie> HydrologicalStateCalculator::getTargetPerReservoirMonthlyVolume(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
    const Date& date, unsigned int windowIndex) const {
  return getCurrentZonePerReservoirMonthly(element, settings, interval, date, windowIndex).serie;
}
