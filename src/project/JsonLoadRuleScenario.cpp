#include "project/JsonLoadRuleScenario.h"

#include <vector>

#include "project/JsonLoadHelper.h"
#include "scenario/RuleScenario.h"

void JsonLoadRuleScenario::loadPumpingConfig(const nlohmann::json& object, Scenario& scenario) {
  bool found = false;
  const nlohmann::json& deficits =
      JsonLoadHelper::findOptional(found, object, "pumpingConfig", "demandDeficits");
  if (!found) return;
  const auto rows = JsonLoadHelper::get<std::vector<std::vector<double>>>(deficits);
  scenario.setPumpingCostsConfiguration(rows.empty() ? std::vector<double>() : rows.front());
}

void JsonLoadRuleScenario::specificLoad(const nlohmann::json& object, Scenario& scenario) const {
  loadPumpingConfig(object, scenario);
}

std::shared_ptr<Scenario> JsonLoadRuleScenario::getInstance(
    const std::shared_ptr<ExecutionMethod>& method, unsigned int id, const Interval& interval,
    const std::string& name) const {
  return std::make_shared<RuleScenario>(method, id, interval, name);
}
