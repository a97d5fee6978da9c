#include "core/ReservoirRuleSettings.h"

void ReservoirRuleSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  RuleSettings::copyFrom(other);
  const auto& source = static_cast<const ReservoirRuleSettings&>(*other);
  rule = source.rule ? source.rule->copy() : nullptr;
}
