#include "project/JsonSaveSceneryFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveGuaranteeCurveScenery.h"
#include "project/JsonSaveOptRuleScenery.h"
#include "project/JsonSavePriorityScenery.h"
#include "project/JsonSaveRuleScenery.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveScenario>(const std::shared_ptr<Scenario>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveScenario> makeWriter(const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Writer>(scenario);
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(ScenarioType::ruleSimulator).getName(), makeWriter<JsonSaveRuleScenery>},
          {Vocabulary::of(ScenarioType::guaranteeCurve).getName(),
           makeWriter<JsonSaveGuaranteeCurveScenery>},
          {Vocabulary::of(ScenarioType::systemGuaranteeCurve).getName(),
           makeWriter<JsonSaveGuaranteeCurveScenery>},
          {Vocabulary::of(ScenarioType::ruleOptimizer).getName(),
           makeWriter<JsonSaveOptRuleScenery>},
          {Vocabulary::of(ScenarioType::priorityOptimizer).getName(),
           makeWriter<JsonSavePriorityScenery>},
      },
      "JsonSaveSceneryFactory::make(): invalid scenarioType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveScenario> JsonSaveSceneryFactory::make(
    const std::shared_ptr<Scenario>& scenario) {
  // An absent scenario has no type, which no row matches.
  const std::string type = scenario ? scenario->getScenarioType().getName() : "";
  return makers().at(type)(scenario);
}

std::vector<std::string> JsonSaveSceneryFactory::keys() { return makers().keys(); }
