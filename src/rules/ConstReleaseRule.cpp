#include "rules/ConstReleaseRule.h"

#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> ConstReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::constant);
}

double ConstReleaseRule::getRelease(const Date&) const { return release; }

std::shared_ptr<ReleaseRule> ConstReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<ConstReleaseRule>(ReleaseRule::copy());
  rule->release = release;
  return rule;
}

void ConstReleaseRule::setRelease(double value) {
  if (value < 0.0) {
    throw std::invalid_argument("ConstReleaseRule::setRelease(): the release is a negative value");
  }
  release = value;
}
