#include "project/database/DatabaseLoadScenarioFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "project/database/DatabaseLoadScenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::unique_ptr<DatabaseLoadScenario>(std::shared_ptr<Scenario>)>;

template <typename T>
std::unique_ptr<DatabaseLoadScenario> makeOf(std::shared_ptr<Scenario> scenario) {
  return std::make_unique<T>(std::move(scenario));
}

const std::map<std::string, Maker>& makers() {
  using S = ScenarioType;
  static const std::map<std::string, Maker> table = {
      {Vocabulary::of(S::ruleSimulator).getName(), makeOf<DatabaseLoadRuleScenario>},
      {Vocabulary::of(S::priorityOptimizer).getName(), makeOf<DatabaseLoadPriorityScenario>},
      {Vocabulary::of(S::ruleOptimizer).getName(), makeOf<DatabaseLoadOptRuleScenario>},
      {Vocabulary::of(S::guaranteeCurve).getName(), makeOf<DatabaseLoadGuaranteeCurveScenario>},
      {Vocabulary::of(S::systemGuaranteeCurve).getName(),
       makeOf<DatabaseLoadSystemGuaranteeCurveScenario>},
  };
  return table;
}

}  // namespace

std::unique_ptr<DatabaseLoadScenario> DatabaseLoadScenarioFactory::make(
    const std::string& typeString, const std::shared_ptr<Scenario>& scenario) {
  const auto maker = makers().find(typeString);
  if (maker == makers().end()) {
    throw std::invalid_argument("DatabaseLoadScenarioFactory::make(): invalid scenarioType");
  }
  return maker->second(scenario);
}
