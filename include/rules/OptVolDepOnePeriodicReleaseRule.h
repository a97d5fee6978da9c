#pragma once

#include <memory>

#include "rules/OptVolDepOneReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"

// The optimisable twin of the rule by the storage of one reservoir, the periodic form: twelve
// releases per row, January first.
class OptVolDepOnePeriodicReleaseRule : public VolDepOnePeriodicReleaseRule,
                                        public OptVolDepOneReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The simulation rule's copy and the table of marks and the maximum release.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptVolDepOnePeriodicReleaseRule>();
  }
  std::string textPrefix() const override { return "Opt"; }
  VolDepOneReleaseRule& working() override { return *this; }
  std::shared_ptr<VolDepOneReleaseRule> getReleaseRuleInstance() const override {
    return std::make_shared<VolDepOnePeriodicReleaseRule>();
  }
  void checkRowSize(const VolDepOneReleaseStruct& row) const override { checkReleasesSize(row); }
};
