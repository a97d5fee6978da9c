#pragma once

#include "checks/ElementCheck.h"
#include "core/Demand.h"

// A demand's return shares, and a drain below each of its outlets.
class DemandCheck : public NodeCheck {
 public:
  DemandCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario);

 protected:
  void runChecks() override;
  const Demand& demand() const { return static_cast<const Demand&>(*getElement()); }

 private:
  void checkNegativeDemandReturn();
  void checkSumDemandReturn();
  void checkDrainDownstream();
};

// In a rule scenario a demand has no check beyond its series and the common ones.
class RuleDemandCheck : public DemandCheck {
 public:
  using DemandCheck::DemandCheck;
};
