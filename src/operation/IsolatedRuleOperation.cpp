#include "operation/IsolatedRuleOperation.h"

IsolatedRuleOperation::IsolatedRuleOperation(const SettingsManager& settingsManager,
                                             const Elements& elements, const Interval& interval,
                                             bool zeroContribution,
                                             const Enum<ScenarioType>& scenarioType,
                                             unsigned int isolatedScenarioId,
                                             const SceneryIsolatedData& isolatedData)
    : RuleOperation(settingsManager, elements, interval, zeroContribution, scenarioType),
      isolatedScenarioId(isolatedScenarioId),
      isolatedData(isolatedData),
      unionLinks(SceneryIsolatedData::enabledUnionLinks(elements)) {}

double IsolatedRuleOperation::release(const std::shared_ptr<Link>& link) {
  return releaseWith(link, &isolatedData);
}

void IsolatedRuleOperation::postProcessing(const Callback& callback) {
  RuleOperation::postProcessing(callback);
  isolatedData.takeUnionFlows(unionLinks, getDate(), getWindowIndex());
}
