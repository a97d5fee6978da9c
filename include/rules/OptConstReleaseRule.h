#pragma once

#include <memory>

#include "rules/OptReleaseRule.h"
#include "rules/ReleaseBounds.h"

// The optimisable twin of the constant rule: when toOpt is set, the optimiser chooses the release
// between lowerRelease and upperRelease (one decision variable).
class OptConstReleaseRule : public ReleaseRule, public OptReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The release, m³/s, whatever the date.
  double getRelease(const Date& date) const override;
  // ReleaseRule::copy() and every number of the rule.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;
  // 1 when toOpt is set, else 0.
  unsigned int getNumOfDecisionVars() const override { return toOpt ? 1 : 0; }
  // release = (upperRelease - lowerRelease) * value + lowerRelease when toOpt is set.
  void setDecisionVars(const std::vector<double>& values) override;
  // A ConstReleaseRule with the present release.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  double getRelease() const { return release; }
  // Sets the release, m³/s. Throws std::invalid_argument
  // "OptConstReleaseRule::setRelease(): the release is a negative value" below 0.
  void setRelease(double value);
  // The range of the optimised release, m³/s, checked as ReleaseBounds tells.
  double getLowerRelease() const { return bounds.getLower(); }
  double getUpperRelease() const { return bounds.getUpper(); }
  void setLowerRelease(double value) { bounds.setLower(value); }
  void setUpperRelease(double value) { bounds.setUpper(value); }
  void setLowerAndUpperRelease(double lower, double upper) { bounds.set(lower, upper); }
  bool getToOpt() const { return toOpt; }
  void setToOpt(bool value) { toOpt = value; }

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptConstReleaseRule>();
  }

 private:
  double release = 0.0;       // m³/s
  ReleaseBounds bounds{"OptConstReleaseRule"};
  bool toOpt = false;
};
