#include "core/ReservoirRuleSettings.h"

#include "core/Link.h"
#include "core/LinkRuleSettings.h"
#include "core/Node.h"
#include "core/Scenario.h"

void ReservoirRuleSettings::copyFrom(const std::shared_ptr<Settings>& other) {
  RuleSettings::copyFrom(other);
  const auto& source = static_cast<const ReservoirRuleSettings&>(*other);
  rule = source.rule ? source.rule->copy() : nullptr;
}

void ReservoirRuleSettings::updateBidirectionalUpstreamLinks(
    const std::shared_ptr<Scenario>& scenario) const {
  const auto lines = getAllocation().count(getElementId()) == 0
                         ? 0
                         : getAllocation().at(getElementId()).size();
  const auto reservoir = std::static_pointer_cast<Node>(scenario->getElement(getElementId()));
  for (const auto& link : reservoir->getUpstreamLinks()) {
    if (!link->getIsBidirectional()) continue;
    auto settings = Scenario::getSettings<LinkRuleSettings>(link, scenario->getSettingsManager());
    std::vector<double> values = settings->getValues();
    values.resize(lines, 0.0);
    settings->setValues(values);
  }
}
