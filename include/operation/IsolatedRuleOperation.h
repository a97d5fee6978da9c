#pragma once

#include "core/SceneryIsolatedData.h"
#include "operation/RuleOperation.h"

// The rule operation of one piece of a run by isolated networks: a union junction sends what its
// link carried in the piece run before, and after each period the piece records the flows of its
// own union links for the pieces that follow.
class IsolatedRuleOperation : public RuleOperation {
 public:
  IsolatedRuleOperation(const SettingsManager& settingsManager, const Elements& elements,
                        const Interval& interval, bool zeroContribution,
                        const Enum<ScenarioType>& scenarioType, unsigned int isolatedScenarioId,
                        const SceneryIsolatedData& isolatedData);

  double release(const std::shared_ptr<Link>& link) override;
  void postProcessing(const Callback& callback) override;

  unsigned int getIsolatedScenarioId() const { return isolatedScenarioId; }

 private:
  unsigned int isolatedScenarioId;
  SceneryIsolatedData isolatedData;
  // The piece's union links, found once for every period.
  std::vector<std::shared_ptr<Link>> unionLinks;
};
