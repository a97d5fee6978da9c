#include "project/JsonSaveExecutionOptimization.h"

#include <vector>

#include "optimization/ExecutionOptimization.h"
#include "project/ExpressionDefinitionSaveFactory.h"
#include "project/JsonSaveOptAlgorithmFactory.h"

using B = JsonSaveBuilder;

namespace {

std::string functionToJson(const ObjectiveFunction& function) {
  std::vector<unsigned int> ids;
  for (const auto& element : function.getElements()) ids.push_back(element->getId());
  return B::makeObject({B::makeJsonKeyValue("isMinimization", function.isMinimization()),
                        B::makeJsonKeyValueString("name", function.getType().getName()),
                        B::makeJsonKeyValue("elementsIds", B::makeVectorOfIntegerValues(ids))});
}

std::string personalizedToJson(const ExpressionDefinitionConfiguration& configuration) {
  return B::makeObject(
      {B::makeJsonKeyValue("isMinimization", configuration.isMinimization()),
       B::makeJsonKeyValue("isEnabled", configuration.isEnabled()),
       B::makeJsonKeyValue(
           "rootExpression",
           ExpressionDefinitionSaveFactory::make(configuration.getRootExpression())->toJson()),
       B::makeJsonKeyValueString("unit", configuration.getUnit().getName())});
}

}  // namespace

JsonSaveBuilder::Members JsonSaveExecutionOptimization::toJsonSpecific() const {
  const auto& method = dynamic_cast<const ExecutionOptimization&>(getMethod());
  const auto function = [](const std::shared_ptr<ObjectiveFunction>& f) {
    return functionToJson(*f);
  };
  return {B::makeJsonKeyValue("objectiveFunctions",
                              B::makeArray(method.getVectorOfObjectiveFunctions(), function)),
          B::makeJsonKeyValue("personalizedObjectiveFunctions",
                              B::makeArray(method.getVectorOfExpressionDefinitionConfiguration(),
                                           personalizedToJson)),
          B::makeJsonKeyValue(
              "OptAlgorithm",
              JsonSaveOptAlgorithmFactory::make(method.getOptimizationAlgorithm())->toJson())};
}
