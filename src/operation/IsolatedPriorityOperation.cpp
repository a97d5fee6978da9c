#include "operation/IsolatedPriorityOperation.h"

#include "operation/IsolatedNetworkFlow.h"

IsolatedPriorityOperation::IsolatedPriorityOperation(
    const SettingsManager& settingsManager, const Elements& elements, const Interval& interval,
    const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
    bool zeroContribution, const Enum<ScenarioType>& scenarioType, unsigned int isolatedScenarioId,
    const SceneryIsolatedData& isolatedData)
    : PriorityOperation(settingsManager, elements, interval, hydrologicalStateCalculator,
                        zeroContribution, scenarioType),
      isolatedScenarioId(isolatedScenarioId),
      isolatedData(isolatedData),
      unionLinks(SceneryIsolatedData::enabledUnionLinks(elements)) {}

void IsolatedPriorityOperation::postProcessing(const Callback& callback) {
  PriorityOperation::postProcessing(callback);
  isolatedData.takeUnionFlows(unionLinks, getDate(), getWindowIndex());
}

std::shared_ptr<NetworkFlow> IsolatedPriorityOperation::makeNetworkFlow() {
  return std::make_shared<IsolatedNetworkFlow>(getSettingsManager(), getDate(), getInterval(),
                                               getHydrologicalStateCalculator(), getWindowIndex(),
                                               isolatedData);
}
