#pragma once

#include <memory>

#include "core/ReleaseRule.h"

// The same release on every date.
class ConstReleaseRule : public ReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The constant release, m³/s, whatever the date.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and the release.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // The constant release, m³/s.
  double getRelease() const { return release; }
  // Sets the release, m³/s. Throws std::invalid_argument "ConstReleaseRule::setRelease(): the
  // release is a negative value" below 0.
  void setRelease(double value);

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<ConstReleaseRule>();
  }

 private:
  double release = 0.0;  // m³/s
};
