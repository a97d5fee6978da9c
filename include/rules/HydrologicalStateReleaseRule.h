#pragma once

#include <memory>
#include <vector>

#include "core/ReleaseRule.h"

class Element;

// A release chosen by the hydrological state of a system of reservoirs. The state at a date is
// the water the enabled reservoirs of the system hold at the start of the period plus their
// natural incremental inflow over it (hm³). The system's capacity W, the sum of their maximum
// volumes, is cut into numOfStates zones by the cumulative shares proportionalZones: zone k ends
// at (proportionalZones[0] + ... + proportionalZones[k]) * W, and the last zone has no upper end.
// A state on a boundary (within 1e-06) belongs to the zone above it. Each zone has its release.
// Disabled reservoirs count for nothing.
class HydrologicalStateReleaseRule : public ReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The release of the zone of the state at date, m³/s.
  double getRelease(const Date& date) const override;
  // Rebuilds the system from its ids: the reservoirs that scenario holds under them, and their
  // ids only.
  void loadAfterScenarioInstantiated(const std::shared_ptr<Scenario>& scenario) override;
  std::vector<std::shared_ptr<Element>> getDependencies() const override { return reservoirs; }
  // ReleaseRule::copy(), the ids, the zones and the releases, but not the reservoirs themselves.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // The reservoirs of the system and their ids.
  const std::vector<std::shared_ptr<Element>>& getReservoirs() const { return reservoirs; }
  const std::vector<unsigned int>& getReservoirsIds() const { return reservoirsIds; }
  // Sets the reservoirs of the system and their ids. Throws std::invalid_argument
  // "HydrologicalStateReleaseRule::setReservoirsOfSystem(): There is some element with nullptr"
  // and "... There is some element that is not reservoir.", checking element by element.
  void setReservoirsOfSystem(const std::vector<std::shared_ptr<Element>>& elements);
  // Sets the ids that loadAfterScenarioInstantiated() resolves.
  void setReservoirsIdsOfSystem(const std::vector<unsigned int>& ids) { reservoirsIds = ids; }

  unsigned int getNumOfStates() const { return numOfStates; }
  // The shares of W (0..1) of all zones but the last.
  const std::vector<double>& getVectorOfProportionalZones() const { return proportionalZones; }
  // The release of each zone, m³/s, lowest zone first.
  const std::vector<double>& getRelease() const { return releases; }
  // Sets the zones. Throws std::invalid_argument "HydrologicalStateReleaseRule::setStates(): The
  // size of proportionalZones must be numOfStates - 1", then "... The size of releases must be
  // numOfStates", then "... All values of releases must be positive" for a release below 0.
  void setStates(unsigned int states, const std::vector<double>& zones,
                 const std::vector<double>& zoneReleases);

  // W: the sum of the maximum volumes of the system's enabled reservoirs, hm³.
  double getW() const;
  // The sum of the minimum volumes of the system's enabled reservoirs, hm³.
  double getMinVolOfSystem() const;
  // The state at date, hm³: storage at the start of the period plus natural incremental inflow
  // over it (inflow counted as zero with zeroContribution). Needs the results of the window up to
  // the period before date.
  double getHydrologicalStateValue(const Date& date) const;
  // The zone of the state at date, 0 = lowest; 0 without computing the state when there is a
  // single zone.
  unsigned int getReleaseIndex(const Date& date) const;
  // How many dates of the interval fall in each zone, lowest first.
  std::vector<unsigned int> getEHOccurrences() const;
  // Guarantees over the dates of the interval, %: entry 0 is the share of dates whose state is
  // above the system's minimum volume (by more than 1e-06); entry i >= 1 the share of dates in
  // zone i or above.
  std::vector<double> getGuaranteeResults() const;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<HydrologicalStateReleaseRule>();
  }

 private:
  // The zone of state (hm³) in a system of capacity w (hm³).
  unsigned int zoneOf(double state, double w) const;

  std::vector<std::shared_ptr<Element>> reservoirs;
  std::vector<unsigned int> reservoirsIds;
  unsigned int numOfStates = 1;
  std::vector<double> proportionalZones;  // shares of W, numOfStates - 1 of them
  std::vector<double> releases = {0.0};   // m³/s, numOfStates of them
};
