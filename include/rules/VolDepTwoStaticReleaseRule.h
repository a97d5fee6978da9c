#pragma once

#include <memory>

#include "rules/VolDepTwoReleaseRule.h"

// A two-reservoir step table with one month slot, whatever the month.
class VolDepTwoStaticReleaseRule : public VolDepTwoReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // As VolDepTwoReleaseRule, first throwing std::invalid_argument "VolDepTwoStaticReleaseRule:
  // the releases vector must have a month slot." for a table with limits for both dependencies
  // but no month slot; only the first slot counts.
  void setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) override;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<VolDepTwoStaticReleaseRule>();
  }
  // releases[0][i][j], m³/s.
  double doGetRelease(const Date& date, unsigned int i, unsigned int j) const override;
};
