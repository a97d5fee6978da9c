#include "rules/NoneReleaseRule.h"

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> NoneReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::none);
}

double NoneReleaseRule::getRelease(const Date&) const { return 0.0; }
