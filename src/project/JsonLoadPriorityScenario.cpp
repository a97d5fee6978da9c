#include "project/JsonLoadPriorityScenario.h"

#include <stdexcept>
#include <vector>

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadRuleScenario.h"
#include "scenario/PriorityScenario.h"
#include "vocabulary/Vocabulary.h"

using Helper = JsonLoadHelper;

namespace {

const Enum<HydrologicalStateType>& hydrologicalStateTypeOf(const std::string& name) {
  const auto* type = Vocabulary::hydrologicalStateTypes().findByName(name);
  if (type == nullptr) {
    throw std::invalid_argument("JsonLoadPriorityScenario::load(): invalid HydrologicalStateType");
  }
  return *type;
}

}  // namespace

void JsonLoadPriorityScenario::specificLoad(const nlohmann::json& object,
                                            Scenario& scenario) const {
  // getInstance() made the scenario.
  HydrologicalStateConfiguration& states =
      *static_cast<PriorityScenario&>(scenario).getHydrologicalStateConfiguration();
  Helper::applyOptional<std::string>(object, "HydrologicalStateType", [&](const std::string& name) {
    states.setCurrentHydrologicalStateType(hydrologicalStateTypeOf(name));
  });
  Helper::applyOptional<std::vector<double>>(
      object, "xValues", [&](const std::vector<double>& values) { states.setXValues(values); });
  Helper::applyOptional<unsigned int>(object, "numberOfStatesMonthly", [&](unsigned int count) {
    states.setNumOfStatesMonthly(count);
  });
  JsonLoadRuleScenario::loadPumpingConfig(object, scenario);
}

std::shared_ptr<Scenario> JsonLoadPriorityScenario::getInstance(
    const std::shared_ptr<ExecutionMethod>& method, unsigned int id, const Interval& interval,
    const std::string& name) const {
  return std::make_shared<PriorityScenario>(method, id, interval, name);
}
