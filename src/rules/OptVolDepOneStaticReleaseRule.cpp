#include "rules/OptVolDepOneStaticReleaseRule.h"

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> OptVolDepOneStaticReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optStaticVolumeDependence1);
}

std::shared_ptr<ReleaseRule> OptVolDepOneStaticReleaseRule::copy() const {
  auto rule =
      std::static_pointer_cast<OptVolDepOneStaticReleaseRule>(VolDepOneStaticReleaseRule::copy());
  copyOptInto(*rule);
  return rule;
}
