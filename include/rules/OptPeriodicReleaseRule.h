#pragma once

#include <memory>
#include <vector>

#include "rules/OptReleaseRule.h"
#include "rules/ReleaseBounds.h"

// The optimisable twin of the periodic rule: the optimiser chooses the release of each month
// whose toOpt flag is set, between lowerRelease and upperRelease; the other months keep theirs.
class OptPeriodicReleaseRule : public ReleaseRule, public OptReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The release of the month of date, m³/s.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and every number of the rule.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;
  // The number of months whose flag is set.
  unsigned int getNumOfDecisionVars() const override;
  // Each flagged month, January first, takes (upperRelease - lowerRelease) * value + lowerRelease.
  void setDecisionVars(const std::vector<double>& values) override;
  // A PeriodicReleaseRule with the present twelve releases.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  // The twelve releases, January first, m³/s.
  const std::vector<double>& getRelease() const { return releases; }
  // Sets the release of month (1 = January), m³/s. Throws std::invalid_argument
  // "OptPeriodicReleaseRule::setRelease(): invalid month value" outside 1..12 and
  // "OptPeriodicReleaseRule::setRelease(): the release is a negative value" below 0.
  void setRelease(unsigned int month, double value);
  // Sets the twelve releases. Throws std::invalid_argument
  // "OptPeriodicReleaseRule::setRelease(): invalid size of vector releases" for another size and
  // the negative-value text for a negative release.
  void setRelease(const std::vector<double>& values);
  // The range of the optimised releases, m³/s, checked as ReleaseBounds tells.
  double getLowerRelease() const { return bounds.getLower(); }
  double getUpperRelease() const { return bounds.getUpper(); }
  void setLowerRelease(double value) { bounds.setLower(value); }
  void setUpperRelease(double value) { bounds.setUpper(value); }
  void setLowerAndUpperRelease(double lower, double upper) { bounds.set(lower, upper); }
  // The flag of month index (0 = January). Throws std::invalid_argument
  // "OptPeriodicReleaseRule::getToOpt(): invalid index value" (setToOpt: its own name) above 11.
  bool getToOpt(unsigned int index) const;
  void setToOpt(unsigned int index, bool value);
  // The twelve flags, January first. Throws std::invalid_argument
  // "OptPeriodicReleaseRule::setToOpt(): invalid size of vector toOpt" for another size.
  void setToOpt(const std::vector<bool>& values);
  const std::vector<bool>& getToOptVec() const { return toOptVector; }

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptPeriodicReleaseRule>();
  }

 private:
  std::vector<double> releases = std::vector<double>(12, 0.0);  // m³/s, January first
  ReleaseBounds bounds{"OptPeriodicReleaseRule"};
  std::vector<bool> toOptVector = std::vector<bool>(12, false);
};
