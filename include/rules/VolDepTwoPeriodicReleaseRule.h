#pragma once

#include <memory>

#include "rules/VolDepTwoReleaseRule.h"

// A two-reservoir step table with twelve month slots, January first.
class VolDepTwoPeriodicReleaseRule : public VolDepTwoReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // As VolDepTwoReleaseRule, first throwing std::invalid_argument "VolDepTwoPeriodicReleaseRule:
  // the releases vector must be the size 12." for a table without exactly twelve month slots.
  void setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<VolDepTwoPeriodicReleaseRule>();
  }
  // releases[month of date - 1][i][j], m³/s.
  double doGetRelease(const Date& date, unsigned int i, unsigned int j) const override;
};
