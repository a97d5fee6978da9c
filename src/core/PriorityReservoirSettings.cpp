#include "core/PriorityReservoirSettings.h"

#include <stdexcept>
#include <string>

#include "common/SerieFactory.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr unsigned int kLowestPriority = 99;
constexpr double kShareTolerance = 1e-06;

using Zones = PriorityReservoirSettings::Zones;

double sumOfShares(const Zones& zones) {
  double sum = 0.0;
  for (const auto& zone : zones) sum += zone.value;
  return sum;
}

void setZonePriority(Zones& zones, unsigned int priority, unsigned int index,
                     const std::string& method) {
  if (index >= zones.size()) throw std::out_of_range(method + ": invalid index");
  if (priority > kLowestPriority) throw std::invalid_argument(method + ": priority > 99");
  zones[index].priority = priority;
}

// The share is tried in place so that the sum is taken exactly as it will be stored.
void setShare(Zones& zones, double value, unsigned int index, const std::string& method) {
  if (index >= zones.size()) throw std::out_of_range(method + ": invalid index");
  const double previous = zones[index].value;
  zones[index].value = value;
  if (sumOfShares(zones) > 1.0 + kShareTolerance) {
    zones[index].value = previous;
    throw std::invalid_argument(method + ": sum of values > 1.0");
  }
}

void copyValues(const Zones& zones, const std::shared_ptr<Serie>& serie,
                const std::string& method) {
  if (!serie) throw std::invalid_argument(method + ": null serie");
  for (const auto& zone : zones) {
    for (const auto& [julian, value] : serie->getMapOfJulianToValues()) {
      zone.serie->setValue(julian, value);
    }
  }
}

void checkMonth(const std::vector<Zones>& months, unsigned int month, const std::string& method) {
  if (month >= months.size()) throw std::out_of_range(method + ": invalid index");
}

const char kMonthlyZones[] = "PriorityReservoirSettings::getVectorOfHydrologicalZonesMonthly()";

Zones copyZones(const Zones& zones) {
  Zones result;
  result.reserve(zones.size());
  for (const auto& zone : zones) result.push_back({zone.value, zone.priority, zone.serie->copy()});
  return result;
}

}  // namespace

unsigned int PriorityReservoirSettings::getDefaultPriority() const { return kLowestPriority; }

std::shared_ptr<Serie> PriorityReservoirSettings::getHydrologicalStateSerie(
    const Interval& interval) const {
  return SerieFactory::make(Vocabulary::of(SerieType::targetVolume),
                            Vocabulary::of(Vocabulary::unitOf(SerieType::targetVolume)), interval);
}

double PriorityReservoirSettings::getDefaultSerieValue() const { return 1.0; }

PriorityReservoirSettings::HydrologicalZone PriorityReservoirSettings::makeDefaultZone(
    const Interval& interval) const {
  std::shared_ptr<Serie> serie = getHydrologicalStateSerie(interval);
  serie->fill(getDefaultSerieValue());
  return {0.0, kLowestPriority, serie};
}

void PriorityReservoirSettings::addDefaultHydrologicalZone(const Interval& interval) {
  zones.push_back(makeDefaultZone(interval));
}

void PriorityReservoirSettings::addHydrologicalZone(const HydrologicalZone& zone) {
  zones.push_back(zone);
}

bool PriorityReservoirSettings::removeLastHydrologicalZone() {
  if (zones.empty()) return false;
  zones.pop_back();
  return true;
}

void PriorityReservoirSettings::setPriorityOfHydrologicalZone(unsigned int priority,
                                                              unsigned int index) {
  setZonePriority(zones, priority, index,
                  "PriorityReservoirSettings::setPriorityOfHydrologicalZone()");
}

void PriorityReservoirSettings::setValueOfHydrologicalZone(double value, unsigned int index) {
  setShare(zones, value, index, "PriorityReservoirSettings::setValueOfHydrologicalZone()");
}

void PriorityReservoirSettings::setAllPrioritiesHydrologicalZone(unsigned int priority) {
  for (auto& zone : zones) zone.priority = priority;
}

void PriorityReservoirSettings::copyPriorityHydrologicalZones() {
  setAllPrioritiesHydrologicalZone(getPriority());
}

void PriorityReservoirSettings::setDefaultValueHydrologicalStatePerReservoirSerie() {
  for (auto& zone : zones) zone.serie->fill(getDefaultSerieValue());
}

void PriorityReservoirSettings::setValueHydrologicalStatePerReservoirSerie(
    const std::shared_ptr<Serie>& serie) {
  copyValues(zones, serie,
             "PriorityReservoirSettings::setValueHydrologicalStatePerReservoirSerie()");
}

const PriorityReservoirSettings::Zones&
PriorityReservoirSettings::getVectorOfHydrologicalZonesMonthly(unsigned int month) const {
  checkMonth(zonesMonthly, month, kMonthlyZones);
  return zonesMonthly[month];
}

PriorityReservoirSettings::Zones& PriorityReservoirSettings::monthSlot(unsigned int month) {
  checkMonth(zonesMonthly, month, kMonthlyZones);
  return zonesMonthly[month];
}

unsigned int PriorityReservoirSettings::getNumberOfZonesMonthly() const {
  return zonesMonthly.empty() ? 0 : static_cast<unsigned int>(zonesMonthly[0].size());
}

void PriorityReservoirSettings::initHydrologicalZoneMonthly(unsigned int count,
                                                            const Interval& interval) {
  zonesMonthly.assign(12, Zones());
  for (auto& month : zonesMonthly) {
    for (unsigned int i = 0; i < count; ++i) month.push_back(makeDefaultZone(interval));
  }
}

void PriorityReservoirSettings::setPriorityOfHydrologicalZoneMonthly(unsigned int priority,
                                                                     unsigned int index,
                                                                     unsigned int month) {
  const std::string method = "PriorityReservoirSettings::setPriorityOfHydrologicalZoneMonthly()";
  checkMonth(zonesMonthly, month, method);
  setZonePriority(zonesMonthly[month], priority, index, method);
}

void PriorityReservoirSettings::setValueOfHydrologicalZoneMonthly(double value, unsigned int index,
                                                                  unsigned int month) {
  const std::string method = "PriorityReservoirSettings::setValueOfHydrologicalZoneMonthly()";
  checkMonth(zonesMonthly, month, method);
  setShare(zonesMonthly[month], value, index, method);
}

void PriorityReservoirSettings::copyPriorityHydrologicalZonesMonthly(unsigned int month) {
  for (auto& zone : monthSlot(month)) zone.priority = getPriority();
}

void PriorityReservoirSettings::setDefaultValueHydrologicalStatePerReservoirSerieMonthly(
    unsigned int month) {
  for (auto& zone : monthSlot(month)) zone.serie->fill(getDefaultSerieValue());
}

void PriorityReservoirSettings::setValueHydrologicalStateSeriePerReservoirMonthly(
    const std::shared_ptr<Serie>& serie, unsigned int month) {
  copyValues(monthSlot(month), serie,
             "PriorityReservoirSettings::setValueHydrologicalStateSeriePerReservoirMonthly()");
}

void PriorityReservoirSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  auto source = std::dynamic_pointer_cast<PriorityReservoirSettings>(other);
  if (!source) throw std::invalid_argument("PrioritySettings::copyFrom: invalid PrioritySettings");
  PrioritySettings::copyFrom(other);
  isHydrologicalStateSystem = source->isHydrologicalStateSystem;
  zones = copyZones(source->zones);
  zonesMonthly.clear();
  for (const auto& month : source->zonesMonthly) zonesMonthly.push_back(copyZones(month));
}
