#pragma once

#include <memory>

#include "core/ReleaseRule.h"

// A reservoir that releases nothing by rule: only its spill leaves.
class NoneReleaseRule : public ReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // Always 0.0 m³/s.
  double getRelease(const Date& date) const override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<NoneReleaseRule>();
  }
};
