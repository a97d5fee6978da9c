#include "project/JsonLoadExecutionOptimization.h"

#include "project/JsonLoadHelper.h"
#include "project/JsonLoadOptAlgorithmFactory.h"

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
  bool found = false;
  const json& personalized = Helper::findOptional(found, object, "personalizedObjectiveFunctions");
  if (found && !Helper::asArray(personalized).empty()) {
    Helper::refuse(personalized, "an empty list (functions by expression are not read yet)");
  }
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
