#include "rules/OptVolDepOnePeriodicReleaseRule.h"

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptVolDepOnePeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optPeriodicVolumeDependence1);
}

std::shared_ptr<ReleaseRule> OptVolDepOnePeriodicReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptVolDepOnePeriodicReleaseRule>(
      VolDepOnePeriodicReleaseRule::copy());
  copyOptInto(*rule);
  return rule;
}
