#pragma once

#include "rules/ReleaseRule.h"

// The same release on every date.
class ConstReleaseRule : public ReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  double getRelease(const Date& date) const override;
  std::shared_ptr<ReleaseRule> copy() const override;

  double getRelease() const { return release; }
  // Throws std::invalid_argument "ConstReleaseRule::setRelease(): the release is a negative
  // value" below 0.
  void setRelease(double value);

 private:
  double release = 0.0;
};
