#pragma once

#include <memory>

#include "core/PrioritySettings.h"

// A reservoir in a priority scenario. Its goal is a target volume, as a fraction of the maximum
// volume; a new state asks for a full reservoir at the lowest usual priority. A reservoir marked
// as part of the system adds its volume to the system's hydrological state.
class PriorityReservoirSettings
    : public CopyableSettings<PriorityReservoirSettings, PrioritySettings> {
 public:
  bool getIsHydrologicalStateSystem() const { return isHydrologicalStateSystem; }
  void setIsHydrologicalStateSystem(bool value) { isHydrologicalStateSystem = value; }

  // 99.
  unsigned int getDefaultPriority() const override;
  // A "Volume meta" series, dimensionless.
  std::shared_ptr<Serie> getHydrologicalStateSerie(const Interval& interval) const override;
  // 1.0, the whole maximum volume.
  double getDefaultSerieValue() const override;

  // As PrioritySettings::copyFrom, with the system mark; throws the same text when other is not
  // a reservoir's priority settings.
  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  bool isHydrologicalStateSystem = false;
};
