#include "rules/HydrologicalStateReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "core/Reservoir.h"
#include "core/ReservoirOperationUtils.h"
#include "core/Scenario.h"
#include "hydrology/HydrologicalBalance.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Elements = std::vector<std::shared_ptr<Element>>;

// The sum of volumeOf(info) over the enabled reservoirs of system, hm³.
template <typename VolumeOf>
double sumOverEnabled(const Elements& system, VolumeOf volumeOf) {
  double sum = 0.0;
  for (const auto& element : system) {
    if (!element->isEnabled()) continue;
    sum += volumeOf(static_cast<const Reservoir&>(*element).getReservoirInfo());
  }
  return sum;
}

std::vector<unsigned int> idsOf(const Elements& elements) {
  std::vector<unsigned int> ids;
  for (const auto& element : elements) ids.push_back(element->getId());
  return ids;
}

}  // namespace

Enum<ReleaseRuleType> HydrologicalStateReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::hydrologicalState);
}

double HydrologicalStateReleaseRule::getRelease(const Date& date) const {
  return releases[getReleaseIndex(date)];
}

void HydrologicalStateReleaseRule::loadAfterScenarioInstantiated(
    const std::shared_ptr<Scenario>& scenario) {
  reservoirs.clear();
  for (unsigned int id : reservoirsIds) {
    if (auto reservoir = findReservoir(*scenario, id)) reservoirs.push_back(reservoir);
  }
  reservoirsIds = idsOf(reservoirs);
}

std::shared_ptr<ReleaseRule> HydrologicalStateReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<HydrologicalStateReleaseRule>(ReleaseRule::copy());
  rule->reservoirsIds = reservoirsIds;
  rule->numOfStates = numOfStates;
  rule->proportionalZones = proportionalZones;
  rule->releases = releases;
  return rule;
}

void HydrologicalStateReleaseRule::setReservoirsOfSystem(const Elements& elements) {
  for (const auto& element : elements) {
    if (!element) {
      throw std::invalid_argument(
          textPrefix() +
          "HydrologicalStateReleaseRule::setReservoirsOfSystem(): There is some element with "
          "nullptr");
    }
    if (!isReservoir(element)) {
      throw std::invalid_argument(
          textPrefix() +
          "HydrologicalStateReleaseRule::setReservoirsOfSystem(): There is some element that is "
          "not reservoir.");
    }
  }
  reservoirs = elements;
  reservoirsIds = idsOf(elements);
}

void HydrologicalStateReleaseRule::setStates(unsigned int states, const std::vector<double>& zones,
                                             const std::vector<double>& zoneReleases) {
  if (zones.size() + 1 != states) {
    throw std::invalid_argument(
        textPrefix() +
        "HydrologicalStateReleaseRule::setStates(): The size of proportionalZones must be "
        "numOfStates - 1");
  }
  if (zoneReleases.size() != states) {
    throw std::invalid_argument(
        textPrefix() +
        "HydrologicalStateReleaseRule::setStates(): The size of releases must be numOfStates");
  }
  if (std::any_of(zoneReleases.begin(), zoneReleases.end(), [](double v) { return v < 0.0; })) {
    throw std::invalid_argument(
        textPrefix() +
        "HydrologicalStateReleaseRule::setStates(): All values of releases must be positive");
  }
  numOfStates = states;
  proportionalZones = zones;
  releases = zoneReleases;
}

double HydrologicalStateReleaseRule::getW() const {
  return sumOverEnabled(reservoirs, [](const ReservoirInfo& info) { return info.maxVol; });
}

double HydrologicalStateReleaseRule::getMinVolOfSystem() const {
  return sumOverEnabled(reservoirs, [](const ReservoirInfo& info) { return info.minVol; });
}

double HydrologicalStateReleaseRule::getHydrologicalStateValue(const Date& date) const {
  const auto balance = HydrologicalBalanceFactory::make(getInterval().getPeriodicity().getType());
  double state = 0.0;
  for (const auto& element : reservoirs) {
    if (!element->isEnabled()) continue;
    const auto reservoir = std::static_pointer_cast<Reservoir>(element);
    // With zeroContribution the inflow series may be absent, so it is not read at all.
    const double inflow =
        getZeroContribution()
            ? 0.0
            : reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(date);
    state += ReservoirOperationUtils::currentReservoirVolume(reservoir, getInterval(), date,
                                                             getWindowIndex()) +
             balance->hm3(date, inflow);
  }
  return state;
}

unsigned int HydrologicalStateReleaseRule::getReleaseIndex(const Date& date) const {
  if (proportionalZones.empty()) return 0;
  return zoneOf(getHydrologicalStateValue(date), getW());
}

unsigned int HydrologicalStateReleaseRule::zoneOf(double state, double w) const {
  double threshold = 0.0;
  for (unsigned int k = 0; k < proportionalZones.size(); ++k) {
    threshold += proportionalZones[k] * w;
    if (NumericalUtils::subtractDoubles(state, threshold, kTolerance) < 0.0) return k;
  }
  return static_cast<unsigned int>(proportionalZones.size());
}

std::vector<unsigned int> HydrologicalStateReleaseRule::getEHOccurrences() const {
  std::vector<unsigned int> occurrences(numOfStates, 0);
  PeriodWalker::forEach(getInterval(),
                        [&](const Date& date) { ++occurrences[getReleaseIndex(date)]; });
  return occurrences;
}

std::vector<double> HydrologicalStateReleaseRule::getGuaranteeResults() const {
  const double w = getW();
  const double minVol = getMinVolOfSystem();
  std::vector<unsigned int> occurrences(numOfStates, 0);
  unsigned int failures = 0;
  PeriodWalker::forEach(getInterval(), [&](const Date& date) {
    const double state = getHydrologicalStateValue(date);
    ++occurrences[zoneOf(state, w)];
    if (NumericalUtils::subtractDoubles(state, minVol, kTolerance) <= 0.0) ++failures;
  });
  const double periods = getInterval().period();
  std::vector<double> guarantees(numOfStates);
  guarantees[0] = (1.0 - failures / periods) * 100.0;
  unsigned int below = 0;
  for (unsigned int i = 1; i < numOfStates; ++i) {
    below += occurrences[i - 1];
    guarantees[i] = (1.0 - below / periods) * 100.0;
  }
  return guarantees;
}
