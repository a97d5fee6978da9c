#include "operation/ExecutionMethodFactoryByType.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "operation/ExecutionContinuous.h"
#include "operation/ExecutionWindowed.h"

std::shared_ptr<ExecutionMethod> ExecutionMethodFactoryByType::make(ExecutionType type,
                                                                    const Interval& interval) {
  static const std::map<ExecutionType,
                        std::function<std::shared_ptr<ExecutionMethod>(const Interval&)>>
      makers = {
          {ExecutionType::continuous, makeContinuos},
          {ExecutionType::windowed, makeWindowed},
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

std::shared_ptr<ExecutionMethod> ExecutionMethodFactoryByType::makeWindowed(const Interval& interval) {
  // A year from the first month is the window users start from.
  auto method = std::make_shared<ExecutionWindowed>();
  method->setWindowSize(12);
  if (interval.period() >= method->getWindowSize()) {
    method->initializeYearsWindow(interval, interval.getBegin().getMonth(), true);
  }
  return method;
}
