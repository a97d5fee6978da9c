#pragma once

#include <memory>

#include "rules/OptReleaseRule.h"

// The optimisable twin of the rule that releases nothing: it takes no decision variable.
class OptNoneReleaseRule : public ReleaseRule, public OptReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // Always 0.0 m³/s.
  double getRelease(const Date& date) const override;
  unsigned int getNumOfDecisionVars() const override { return 0; }
  void setDecisionVars(const std::vector<double>& values) override;
  // A NoneReleaseRule.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptNoneReleaseRule>();
  }
};
