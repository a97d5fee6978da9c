#pragma once

#include <memory>

#include <vector>

#include "rules/VolDepOneReleaseRule.h"

// A one-reservoir step table with twelve releases per row, one per calendar month.
class VolDepOnePeriodicReleaseRule : public VolDepOneReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // As VolDepOneReleaseRule, first throwing std::invalid_argument "VolDepOnePeriodicReleaseRule:
  // the releases vector must be the size 12." for a row without exactly twelve releases.
  void setVectorOfVolDepOneReleaseStruct(const std::vector<VolDepOneReleaseStruct>& rows) override;

 protected:
  // Throws the text of the row size this form refuses.
  void checkReleasesSize(const VolDepOneReleaseStruct& row) const;
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<VolDepOnePeriodicReleaseRule>();
  }
  // The row's release of the month of date, m³/s.
  double doGetRelease(const Date& date, unsigned int row) const override;
};
