#include "operation/ExecutionMethodFactoryByType.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "operation/ExecutionContinuous.h"

std::shared_ptr<ExecutionMethod> ExecutionMethodFactoryByType::make(ExecutionType type,
                                                                    const Interval& interval) {
  static const std::map<ExecutionType,
                        std::function<std::shared_ptr<ExecutionMethod>(const Interval&)>>
      makers = {
          {ExecutionType::continuous, makeContinuos},
      };
  auto it = makers.find(type);
  if (it == makers.end()) {
    throw std::invalid_argument("ExecutionMethodFactoryByType::make(): invalid executionType");
  }
  return it->second(interval);
}

std::shared_ptr<ExecutionMethod> ExecutionMethodFactoryByType::makeContinuos(const Interval&) {
  return std::make_shared<ExecutionContinuous>();
}
