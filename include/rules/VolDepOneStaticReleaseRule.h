#pragma once

#include <memory>

#include <vector>

#include "rules/VolDepOneReleaseRule.h"

// A one-reservoir step table with one release per row, whatever the month.
class VolDepOneStaticReleaseRule : public VolDepOneReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // As VolDepOneReleaseRule, first throwing std::invalid_argument "VolDepOneStaticReleaseRule:
  // the releases vector must not be empty." for a row without a release; only the first counts.
  void setVectorOfVolDepOneReleaseStruct(const std::vector<VolDepOneReleaseStruct>& rows) override;

 protected:
  // Throws the text of the row size this form refuses.
  void checkReleasesSize(const VolDepOneReleaseStruct& row) const;
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<VolDepOneStaticReleaseRule>();
  }
  // The row's first release, m³/s.
  double doGetRelease(const Date& date, unsigned int row) const override;
};
