#include "rules/OptVolDepTwoPeriodicReleaseRule.h"

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptVolDepTwoPeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optPeriodicVolumeDependence2);
}

std::shared_ptr<ReleaseRule> OptVolDepTwoPeriodicReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptVolDepTwoPeriodicReleaseRule>(
      VolDepTwoPeriodicReleaseRule::copy());
  copyOptInto(*rule);
  return rule;
}
