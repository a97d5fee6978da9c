#pragma once

#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/HydrologicalStateConfiguration.h"
#include "core/PriorityReservoirSettings.h"
#include "core/SettingsManager.h"

// The hydrological state of one priority run. With the type "Padrão" the state is an index into
// every element's pairs of priority and goal, set once per date from the water of the system's
// reservoirs: what they hold at the start of the period plus their natural inflow over it. The
// system's capacity is cut into zones by the configuration's shares, and a volume on a boundary
// (within 1e-06) belongs to the zone below it.
//
// The per-reservoir types keep no state: the zone of a reservoir is found afresh at each query
// from its own storage, and there a volume on a boundary belongs to the zone above it. The two
// conventions differ on purpose; the second is that of the release rule by hydrological state.
class HydrologicalStateCalculator {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;
  using HydrologicalZone = PriorityReservoirSettings::HydrologicalZone;

  struct Zone {
    double lower;  // hm³
    double upper;  // hm³
  };

  // A calculator for the reservoirs given (those of the run, enabled), with the configuration's
  // type and zones cut from the capacity of the reservoirs marked as part of the system.
  HydrologicalStateCalculator(const std::shared_ptr<HydrologicalStateConfiguration>& configuration,
                              const SettingsManager& settingsManager, const Elements& reservoirs,
                              bool zeroContribution);

  // Sets the state of date; only the type "Padrão" has one, every other type leaves it alone.
  void updateHydrologicStateValue(const Date& date, const Interval& interval,
                                  unsigned int windowIndex);
  // The index of the state of a system holding volume (hm³): the first zone whose upper end it
  // does not pass, or the number of zones when it passes them all.
  void calcHydrologicIndex(double volume);
  // The capacity of the reservoirs marked as part of the system, hm³.
  void calcVolMaxReservoirs();
  // Cuts the capacity into one zone per share of the configuration, lowest first.
  void generateZones(const HydrologicalStateConfiguration& configuration);

  // The configured type as its plain number (0 to 3).
  int getHydrologicalStateType() const { return hydrologicalStateType; }
  // The state of the last date, 0 the driest.
  unsigned int getHydrologicIndex() const { return hydrologicIndex; }
  // The capacity of the system, hm³.
  double getVolMaxReservoirs() const { return volMaxReservoirs; }
  // The zones of the system's states, lowest first.
  const std::vector<Zone>& getZones() const { return zones; }

  // The priority and the goal series of the element in the present state. Throw std::out_of_range
  // when the element has fewer pairs than the state needs.
  unsigned int getPriority(const std::shared_ptr<PrioritySettings>& settings) const;
  std::shared_ptr<Serie> getTargetVolume(const std::shared_ptr<PrioritySettings>& settings) const;
  std::shared_ptr<Serie> getWaterDemand(const std::shared_ptr<PrioritySettings>& settings) const;

  // The reservoir's zone at date: the first whose top (the running sum of shares times the
  // maximum volume) the storage plus the natural inflow of the period stays below, else the top
  // zone. A reservoir without zones answers a zone of share 0.0 with its own priority and its
  // input "Volume meta".
  HydrologicalZone getCurrentZonePerReservoir(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
      const Date& date, unsigned int windowIndex) const;
  // As getCurrentZonePerReservoir over the zones of the month of date. Throws std::out_of_range
  // as PriorityReservoirSettings::getVectorOfHydrologicalZonesMonthly before the monthly zones
  // exist.
  HydrologicalZone getCurrentZonePerReservoirMonthly(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
      const Date& date, unsigned int windowIndex) const;
  // The priority and the target series (fraction of the maximum volume) of those zones.
  unsigned int getPriorityPerReservoir(const std::shared_ptr<Element>& element,
                                       const std::shared_ptr<PriorityReservoirSettings>& settings,
                                       const Interval& interval, const Date& date,
                                       unsigned int windowIndex) const;
  unsigned int getPriorityPerReservoirMonthly(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
      const Date& date, unsigned int windowIndex) const;
  std::shared_ptr<Serie> getTargetPerReservoirVolume(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
      const Date& date, unsigned int windowIndex) const;
  std::shared_ptr<Serie> getTargetPerReservoirMonthlyVolume(
      const std::shared_ptr<Element>& element,
      const std::shared_ptr<PriorityReservoirSettings>& settings, const Interval& interval,
      const Date& date, unsigned int windowIndex) const;

 private:
  // Storage at the start of the period of date plus natural inflow over it, hm³.
  double availableVolume(const std::shared_ptr<Element>& reservoir, const Interval& interval,
                         const Date& date, unsigned int windowIndex) const;
  HydrologicalZone zoneAmong(const PriorityReservoirSettings::Zones& zones,
                             const std::shared_ptr<Element>& element,
                             const std::shared_ptr<PriorityReservoirSettings>& settings,
                             const Interval& interval, const Date& date,
                             unsigned int windowIndex) const;
  std::shared_ptr<PriorityReservoirSettings> settingsOf(
      const std::shared_ptr<Element>& reservoir) const;

  Elements reservoirs;
  const SettingsManager* settingsManager;
  bool zeroContribution;
  int hydrologicalStateType;
  std::vector<Zone> zones;
  unsigned int hydrologicIndex = 0;
  double volMaxReservoirs = 0.0;  // hm³
};
