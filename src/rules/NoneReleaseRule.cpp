#include "rules/NoneReleaseRule.h"

#include "core/Vocabulary.h"

Enum<ReleaseRuleType> NoneReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::none);
}

double NoneReleaseRule::getRelease(const Date&) const { return release; }

std::shared_ptr<ReleaseRule> NoneReleaseRule::copy() const {
  return std::make_shared<NoneReleaseRule>(*this);
}
