#include "project/JsonSaveExecutionOptimization.h"

#include <vector>

#include "optimization/ExecutionOptimization.h"
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

}  // namespace

JsonSaveBuilder::Members JsonSaveExecutionOptimization::toJsonSpecific() const {
  const auto& method = dynamic_cast<const ExecutionOptimization&>(getMethod());
  const auto function = [](const std::shared_ptr<ObjectiveFunction>& f) {
    return functionToJson(*f);
  };
  return {B::makeJsonKeyValue("objectiveFunctions",
                              B::makeArray(method.getVectorOfObjectiveFunctions(), function)),
          B::makeJsonKeyValue("personalizedObjectiveFunctions", "[]"),
          B::makeJsonKeyValue(
              "OptAlgorithm",
              JsonSaveOptAlgorithmFactory::make(method.getOptimizationAlgorithm())->toJson())};
}
