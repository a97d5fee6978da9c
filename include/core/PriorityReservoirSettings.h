#pragma once

#include <memory>
#include <vector>

#include "core/PrioritySettings.h"

// A reservoir in a priority scenario. Its goal is a target volume, as a fraction of the maximum
// volume; a new state asks for a full reservoir at the lowest usual priority. A reservoir marked
// as part of the system adds its volume to the system's hydrological state.
//
// A reservoir may also have hydrological zones of its own: bands of its storage, each a share of
// the maximum volume stacked from the bottom, with the priority and target volume that hold while
// the reservoir is in that band. One list serves every month; the monthly form keeps a list for
// each month. The shares of a list never add up to more than 1.0.
class PriorityReservoirSettings
    : public CopyableSettings<PriorityReservoirSettings, PrioritySettings> {
 public:
  struct HydrologicalZone {
    double value = 0.0;  // share of the maximum volume, dimensionless
    unsigned int priority = 99;
    std::shared_ptr<Serie> serie;  // target volume in the zone, fraction of the maximum volume
  };
  using Zones = std::vector<HydrologicalZone>;

  // Whether the reservoir counts in the system's hydrological state.
  bool getIsHydrologicalStateSystem() const { return isHydrologicalStateSystem; }
  void setIsHydrologicalStateSystem(bool value) { isHydrologicalStateSystem = value; }

  // 99.
  unsigned int getDefaultPriority() const override;
  // A "Volume meta" series, dimensionless.
  std::shared_ptr<Serie> getHydrologicalStateSerie(const Interval& interval) const override;
  // 1.0, the whole maximum volume.
  double getDefaultSerieValue() const override;

  // The zones that serve every month, lowest first.
  const Zones& getVectorOfHydrologicalZones() const { return zones; }
  // Appends a zone of share 0.0 and priority 99 whose target series over interval asks for the
  // default goal.
  void addDefaultHydrologicalZone(const Interval& interval);
  // Appends the zone as given, its series shared with the caller.
  void addHydrologicalZone(const HydrologicalZone& zone);
  // Removes the top zone; false when there was none.
  bool removeLastHydrologicalZone();
  // Drops every zone.
  void cleanHydrologicalZones() { zones.clear(); }
  // Gives the zone at index the priority. Throws std::out_of_range
  // "PriorityReservoirSettings::setPriorityOfHydrologicalZone(): invalid index" past the last
  // zone, then std::invalid_argument "...: priority > 99".
  void setPriorityOfHydrologicalZone(unsigned int priority, unsigned int index);
  // Gives the zone at index the share (dimensionless). Throws std::out_of_range
  // "PriorityReservoirSettings::setValueOfHydrologicalZone(): invalid index" past the last zone,
  // and std::invalid_argument "...: sum of values > 1.0", keeping the old share, when the shares
  // would add up to more than 1.0 (by more than 1e-06).
  void setValueOfHydrologicalZone(double value, unsigned int index);
  // Gives every zone the same priority.
  void setAllPrioritiesHydrologicalZone(unsigned int priority);
  // Gives every zone the reservoir's own priority.
  void copyPriorityHydrologicalZones();
  // Fills the target series of every zone with the default goal over its own interval.
  void setDefaultValueHydrologicalStatePerReservoirSerie();
  // Writes the values of serie, date by date, into the target series of every zone. Throws
  // std::invalid_argument "PriorityReservoirSettings::setValueHydrologicalStatePerReservoirSerie():
  // null serie".
  void setValueHydrologicalStatePerReservoirSerie(const std::shared_ptr<Serie>& serie);

  // True once the twelve monthly lists exist.
  bool initedVectorOfHydrologicalZonesMonthly() const { return zonesMonthly.size() == 12; }
  // The zones of a month slot (0 = January). Throws std::out_of_range
  // "PriorityReservoirSettings::getVectorOfHydrologicalZonesMonthly(): invalid index" for a slot
  // that does not exist.
  const Zones& getVectorOfHydrologicalZonesMonthly(unsigned int month) const;
  // The number of zones of January; 0 before the monthly lists exist.
  unsigned int getNumberOfZonesMonthly() const;
  // Drops every monthly list.
  void cleanHydrologicalZoneMonthly() { zonesMonthly.clear(); }
  // Makes the twelve monthly lists anew, each with count default zones over interval.
  void initHydrologicalZoneMonthly(unsigned int count, const Interval& interval);
  // As setPriorityOfHydrologicalZone within a month slot, with the texts of
  // "PriorityReservoirSettings::setPriorityOfHydrologicalZoneMonthly()"; a slot that does not
  // exist is an invalid index.
  void setPriorityOfHydrologicalZoneMonthly(unsigned int priority, unsigned int index,
                                            unsigned int month);
  // As setValueOfHydrologicalZone within a month slot, with the texts of
  // "PriorityReservoirSettings::setValueOfHydrologicalZoneMonthly()".
  void setValueOfHydrologicalZoneMonthly(double value, unsigned int index, unsigned int month);
  // Gives every zone of the month slot the reservoir's own priority. Throws as
  // getVectorOfHydrologicalZonesMonthly.
  void copyPriorityHydrologicalZonesMonthly(unsigned int month);
  // Fills the target series of every zone of the month slot with the default goal. Throws as
  // getVectorOfHydrologicalZonesMonthly.
  void setDefaultValueHydrologicalStatePerReservoirSerieMonthly(unsigned int month);
  // Writes the values of serie, date by date, into the target series of every zone of the month
  // slot. Throws as getVectorOfHydrologicalZonesMonthly, and std::invalid_argument
  // "PriorityReservoirSettings::setValueHydrologicalStateSeriePerReservoirMonthly(): null serie".
  void setValueHydrologicalStateSeriePerReservoirMonthly(const std::shared_ptr<Serie>& serie,
                                                         unsigned int month);

  // As PrioritySettings::copyFrom, with the system mark and copies of every zone; throws the
  // same text when other is not a reservoir's priority settings.
  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  HydrologicalZone makeDefaultZone(const Interval& interval) const;
  Zones& monthSlot(unsigned int month);

  bool isHydrologicalStateSystem = false;
  Zones zones;
  std::vector<Zones> zonesMonthly;
};
