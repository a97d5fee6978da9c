#pragma once

#include "core/SceneryIsolatedData.h"
#include "operation/PriorityOperation.h"

// The priority operation of one piece of a run by isolated networks: its models hold each union
// junction's link at the flow it carried in the piece run before (IsolatedNetworkFlow), and after
// each period the piece records the flows of its own union links for the pieces that follow.
class IsolatedPriorityOperation : public PriorityOperation {
 public:
  IsolatedPriorityOperation(
      const SettingsManager& settingsManager, const Elements& elements, const Interval& interval,
      const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
      bool zeroContribution, const Enum<ScenarioType>& scenarioType,
      unsigned int isolatedScenarioId, const SceneryIsolatedData& isolatedData);

  void postProcessing(const Callback& callback) override;

  unsigned int getIsolatedScenarioId() const { return isolatedScenarioId; }

 protected:
  std::shared_ptr<NetworkFlow> makeNetworkFlow() override;

 private:
  unsigned int isolatedScenarioId;
  SceneryIsolatedData isolatedData;
  // The piece's union links, found once for every period.
  std::vector<std::shared_ptr<Link>> unionLinks;
};
