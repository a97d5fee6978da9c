#pragma once

#include <memory>

#include "core/ReleaseRule.h"
#include "core/RuleSettings.h"

class Scenario;

// A reservoir in a rule scenario: its allocation matrix and its release rule (null until one is
// chosen). Copies own a copy of the rule, so two scenarios never share one.
class ReservoirRuleSettings : public CopyableSettings<ReservoirRuleSettings, RuleSettings> {
 public:
  const std::shared_ptr<ReleaseRule>& getRule() const { return rule; }
  void setRule(const std::shared_ptr<ReleaseRule>& value) { rule = value; }

  // Brings the own rows of the reservoir's bidirectional incoming links to as many lines as the
  // reservoir's matrix has, padding with zeros or dropping the lines beyond.
  void updateBidirectionalUpstreamLinks(const std::shared_ptr<Scenario>& scenario) const;

  void copyFrom(const std::shared_ptr<Settings>& other) override;

 private:
  std::shared_ptr<ReleaseRule> rule;
};
