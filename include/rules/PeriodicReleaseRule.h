#pragma once

#include <memory>

#include <vector>

#include "core/ReleaseRule.h"

// One release per calendar month, the same every year.
class PeriodicReleaseRule : public ReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The release of the month of date, m³/s.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and the twelve releases.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;

  // The twelve releases, January first, m³/s.
  const std::vector<double>& getRelease() const { return releases; }
  // Sets the release of month (1 = January), m³/s. Throws std::invalid_argument
  // "PeriodicReleaseRule::setRelease(): invalid month value" for a month above 12 and
  // "PeriodicReleaseRule::setRelease(): the release is a negative value" below 0. Month 0 is
  // the caller's error and is not checked.
  void setRelease(unsigned int month, double value);
  // Sets the twelve releases, January first, m³/s. Throws std::invalid_argument
  // "PeriodicReleaseRule::setRelease(): invalid size of vector releases" for another size.
  void setRelease(const std::vector<double>& values);

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<PeriodicReleaseRule>();
  }

 private:
  std::vector<double> releases = std::vector<double>(12, 0.0);  // m³/s, January first
};
