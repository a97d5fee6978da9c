#include "rules/OptVolDepTwoStaticReleaseRule.h"

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptVolDepTwoStaticReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optStaticVolumeDependence2);
}

std::shared_ptr<ReleaseRule> OptVolDepTwoStaticReleaseRule::copy() const {
  auto rule =
      std::static_pointer_cast<OptVolDepTwoStaticReleaseRule>(VolDepTwoStaticReleaseRule::copy());
  copyOptInto(*rule);
  return rule;
}
