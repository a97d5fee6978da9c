#pragma once

#include <memory>
#include <string>

#include "rules/OptVolDepTwoReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"

// The optimisable twin of the rule by the storage of two reservoirs, the periodic form: twelve
// month slots, January first.
class OptVolDepTwoPeriodicReleaseRule : public VolDepTwoPeriodicReleaseRule,
                                        public OptVolDepTwoReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The simulation rule's copy and the table of marks and the maximum release.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptVolDepTwoPeriodicReleaseRule>();
  }
  std::string textPrefix() const override { return "Opt"; }
  std::string ownerOfDependencyTexts() const override { return "OptVolDepTwoReleaseRule"; }
  std::string ownerOfTableTexts() const override { return "OptVolDepTwoReleaseRule"; }
  VolDepTwoReleaseRule& working() override { return *this; }
  std::shared_ptr<VolDepTwoReleaseRule> getReleaseRuleInstance() const override {
    return std::make_shared<VolDepTwoPeriodicReleaseRule>();
  }
};
