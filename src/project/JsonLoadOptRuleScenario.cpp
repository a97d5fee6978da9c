#include "project/JsonLoadOptRuleScenario.h"

#include <vector>

#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadOptRuleScenario::specificLoad(const json& object, Scenario& scenario) const {
  auto& optimization = dynamic_cast<RuleOptimizationScenario&>(scenario);
  loadFunctionElements(object, optimization);
  loadFront(object, optimization);
}

std::shared_ptr<Scenario> JsonLoadOptRuleScenario::getInstance(
    const std::shared_ptr<ExecutionMethod>& method, unsigned int id, const Interval& interval,
    const std::string& name) const {
  return std::make_shared<RuleOptimizationScenario>(
      std::static_pointer_cast<ExecutionOptimization>(method), id, interval, name);
}

void JsonLoadOptRuleScenario::loadFunctionElements(const json& object,
                                                   RuleOptimizationScenario& scenario) {
  const json& items = Helper::asArray(
      Helper::findRequired(Helper::findRequired(object, "ExecutionMethod"), "objectiveFunctions"));
  auto& method = scenario.getExecutionOptimization();
  const ExecutionOptimization::Functions functions = method.getVectorOfObjectiveFunctions();
  method.cleanObjectiveFunctions();
  for (std::size_t i = 0; i < functions.size(); ++i) {
    Scenario::Elements elements;
    for (const json& id : Helper::asArray(Helper::findRequired(items[i], "elementsIds"))) {
      elements.push_back(
          Helper::at(id, [&] { return scenario.getElement(Helper::get<unsigned int>(id)); }));
    }
    method.addObjectiveFunction(functions[i]->getType().getType(), functions[i]->isMinimization(),
                                elements);
  }
}

void JsonLoadOptRuleScenario::loadFront(const json& object, RuleOptimizationScenario& scenario) {
  using Matrix = RuleOptimizationScenario::Matrix;
  bool foundSolutions = false;
  bool foundValues = false;
  const Matrix solutions = Helper::findOptional<Matrix>(foundSolutions, object, "solutions");
  const json& values = Helper::findOptional(foundValues, object, "objectiveFunctionsValues");
  if (!foundSolutions && !foundValues) return;
  const Matrix objectives = foundValues ? Helper::get<Matrix>(values) : Matrix();
  if (objectives.size() != solutions.size()) {
    Helper::refuse(
        foundValues ? values : object,
        std::to_string(solutions.size()) + " rows of objective values, one per solution");
  }
  scenario.setOptimizationResults(solutions, objectives);
}
