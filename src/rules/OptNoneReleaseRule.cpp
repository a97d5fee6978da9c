#include "rules/OptNoneReleaseRule.h"

#include "rules/NoneReleaseRule.h"
#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptNoneReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optNone);
}

double OptNoneReleaseRule::getRelease(const Date&) const { return 0.0; }

void OptNoneReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptNoneReleaseRule");
}

std::shared_ptr<ReleaseRule> OptNoneReleaseRule::convertToReleaseRule() const {
  return std::make_shared<NoneReleaseRule>();
}
