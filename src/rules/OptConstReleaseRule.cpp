#include "rules/OptConstReleaseRule.h"

#include <stdexcept>

#include "rules/ConstReleaseRule.h"
#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptConstReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optConstant);
}

double OptConstReleaseRule::getRelease(const Date&) const { return release; }

std::shared_ptr<ReleaseRule> OptConstReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptConstReleaseRule>(ReleaseRule::copy());
  rule->release = release;
  rule->bounds = bounds;
  rule->toOpt = toOpt;
  return rule;
}

void OptConstReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptConstReleaseRule");
  if (toOpt) release = bounds.scaled(values[0]);
}

std::shared_ptr<ReleaseRule> OptConstReleaseRule::convertToReleaseRule() const {
  auto rule = std::make_shared<ConstReleaseRule>();
  rule->setRelease(release);
  return rule;
}

void OptConstReleaseRule::setRelease(double value) {
  if (value < 0.0) {
    throw std::invalid_argument(
        "OptConstReleaseRule::setRelease(): the release is a negative value");
  }
  release = value;
}
