#pragma once

#include <memory>

#include "checks/ReleaseRuleCheck.h"

// Makes the check of a reservoir's release rule by the rule's kind. Throws std::invalid_argument
// "ReleaseRuleCheckFactory::make: invalid release rule type" for a kind without a check.
class ReleaseRuleCheckFactory {
 public:
  static std::shared_ptr<ReleaseRuleCheck> make(std::weak_ptr<Scenario> scenario,
                                                std::shared_ptr<Element> element,
                                                ReleaseRuleCheck::Errors& errors);
};
