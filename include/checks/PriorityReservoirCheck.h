#pragma once

#include <memory>

#include "checks/ReservoirCheck.h"
#include "core/PriorityReservoirSettings.h"
#include "vocabulary/EnumTypes.h"

// In a priority scenario: the series of rain, evaporation, natural inflow and target volume, the
// reservoir's priority, its target against its volumes, and the priority and target series of
// each hydrological state or zone that the scenario's type of state reads.
class PriorityReservoirCheck : public ReservoirCheck {
 public:
  PriorityReservoirCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario);

 protected:
  void runChecks() override;

 private:
  void checkPriority();
  // The target is a share of the maximum volume: at most 1.0, and never below the minimum
  // volume once multiplied by the maximum. Each fault is told once, however many dates show it.
  void checkTargetVolumeValue();
  void checkHydrologicalState();
  void checkHydrologicalStatePerReservoir();
  void checkHydrologicalStatePerReservoirMonthly();
  void checkZones(const PriorityReservoirSettings::Zones& zones);

  std::shared_ptr<PriorityReservoirSettings> settings() const;
  HydrologicalStateType stateType() const;
};
