#pragma once

#include <memory>

#include "checks/DemandCheck.h"
#include "core/PrioritySettings.h"
#include "vocabulary/EnumTypes.h"

// In a priority scenario: a demand's priority and, under the type "Padrão", those of its
// hydrological states with their demand series. No demand or reservoir downstream may come
// before it: a demand is held at nothing until its own pass, so whatever reaches them through it
// would come too late.
class PriorityDemandCheck : public DemandCheck {
 public:
  PriorityDemandCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario);

  // The largest priority number the demand may take: 99.
  virtual double maxPriority() const;

 protected:
  void runChecks() override;

 private:
  void checkPriority();
  void checkHydrologicalState();
  void checkDownstreamDemandPriority();

  std::shared_ptr<PrioritySettings> settingsOf(const std::shared_ptr<Element>& element) const;
  HydrologicalStateType stateType() const;
};

// A drain may also take 100, the priority without weight, so that it takes nothing at all.
class PriorityDrainDemandCheck : public PriorityDemandCheck {
 public:
  using PriorityDemandCheck::PriorityDemandCheck;

  // One more than a demand's: 100.
  double maxPriority() const override;
};
