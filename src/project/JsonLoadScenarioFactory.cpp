#include "project/JsonLoadScenarioFactory.h"

#include <functional>

#include "project/JsonLoadGuaranteeCurveScenario.h"
#include "project/JsonLoadOptRuleScenario.h"
#include "project/JsonLoadPriorityScenario.h"
#include "project/JsonLoadRuleScenario.h"
#include "project/JsonLoadSystemGuaranteeCurveScenario.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonLoadScenario>()>;

template <typename Reader>
std::shared_ptr<JsonLoadScenario> makeReader() {
  return std::make_shared<Reader>();
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {Vocabulary::of(ScenarioType::ruleSimulator).getName(), makeReader<JsonLoadRuleScenario>},
          {Vocabulary::of(ScenarioType::guaranteeCurve).getName(),
           makeReader<JsonLoadGuaranteeCurveScenario>},
          {Vocabulary::of(ScenarioType::systemGuaranteeCurve).getName(),
           makeReader<JsonLoadSystemGuaranteeCurveScenario>},
          {Vocabulary::of(ScenarioType::ruleOptimizer).getName(),
           makeReader<JsonLoadOptRuleScenario>},
          {Vocabulary::of(ScenarioType::priorityOptimizer).getName(),
           makeReader<JsonLoadPriorityScenario>},
      },
      "JsonLoadScenarioFactory::make(): invalid scenarioType");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadScenario> JsonLoadScenarioFactory::make(const std::string& type) {
  return makers().at(type)();
}

std::vector<std::string> JsonLoadScenarioFactory::keys() { return makers().keys(); }
