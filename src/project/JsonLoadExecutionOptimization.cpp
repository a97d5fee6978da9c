#include "project/JsonLoadExecutionOptimization.h"

#include "project/ExpressionDefinitionJsonLoad.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadOptAlgorithmFactory.h"
#include "vocabulary/EnumFactories.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

JsonLoadExecutionOptimization::JsonLoadExecutionOptimization()
    : JsonLoadExecutionMethod(ExecutionType::optimization) {}

std::shared_ptr<ExecutionMethod> JsonLoadExecutionOptimization::makeInstance(
    const Interval&) const {
  return std::make_shared<ExecutionOptimization>();
}

void JsonLoadExecutionOptimization::loadSpecific(const json& object,
                                                 ExecutionMethod& method) const {
  auto& optimization = dynamic_cast<ExecutionOptimization&>(method);
  loadObjectiveFunctions(object, optimization);
  loadPersonalizedObjectiveFunctions(object, optimization);
  loadAlgorithm(object, optimization, OptimizationAlgorithmTypeNames::typeOf);
}

void JsonLoadExecutionOptimization::loadObjectiveFunctions(const json& object,
                                                           ExecutionOptimization& method) {
  for (const json& item : Helper::asArray(Helper::findRequired(object, "objectiveFunctions"))) {
    const json& name = Helper::findRequired(item, "name");
    const ObjectiveFunctionType type = Helper::at(name, [&] {
      return ObjectiveFunctionTypeEnum::byName(Helper::get<std::string>(name)).getType();
    });
    const bool minimize = Helper::getRequired<bool>(item, "isMinimization");
    Helper::at(item, [&] { method.addObjectiveFunction(type, minimize, {}); });
  }
}

void JsonLoadExecutionOptimization::loadPersonalizedObjectiveFunctions(
    const json& object, ExecutionOptimization& method) {
  bool found = false;
  const json& personalized = Helper::findOptional(found, object, "personalizedObjectiveFunctions");
  if (!found) return;
  for (const json& item : Helper::asArray(personalized)) {
    const bool minimize = Helper::getRequired<bool>(item, "isMinimization");
    const bool enabled = Helper::getRequired<bool>(item, "isEnabled");
    auto root =
        ExpressionDefinitionJsonLoad::loadExpression(Helper::findRequired(item, "rootExpression"));
    const json& unit = Helper::findRequired(item, "unit");
    const auto& unitEnum = Helper::known(unit, "the name of a unit", [&] {
      return EnumUnitFactory::makeUnit(Helper::get<std::string>(unit));
    });
    method.addExpressionDefinitionConfiguration(
        ExpressionDefinitionConfiguration(std::move(root), enabled, minimize, unitEnum));
  }
}

void JsonLoadExecutionOptimization::loadAlgorithm(
    const json& object, SwarmExecution& method,
    OptimizationAlgorithmType (*typeOf)(const std::string&)) {
  const json& algorithm = Helper::findRequired(object, "OptAlgorithm");
  const json& name = Helper::findRequired(algorithm, "type");
  const OptimizationAlgorithmType type =
      Helper::at(name, [&] { return typeOf(Helper::get<std::string>(name)); });
  const auto parameters = JsonLoadOptAlgorithmFactory::make(type)->load(algorithm);
  Helper::at(algorithm, [&] { method.setAlgorithm(type, parameters); });
}
