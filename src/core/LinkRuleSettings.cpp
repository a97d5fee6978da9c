#include "core/LinkRuleSettings.h"

void LinkRuleSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  values = static_cast<const LinkRuleSettings&>(*other).values;
}
