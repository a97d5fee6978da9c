#pragma once

#include <memory>

#include "common/Interval.h"
#include "core/ExecutionMethod.h"

// Makes an execution method by its type. Throws std::invalid_argument
// "ExecutionMethodFactoryByType::make(): invalid executionType" for a type without a method.
class ExecutionMethodFactoryByType {
 public:
  static std::shared_ptr<ExecutionMethod> make(ExecutionType type, const Interval& interval);
  static std::shared_ptr<ExecutionMethod> makeContinuos(const Interval& interval);
  // A windowed method whose candidate windows start in the interval's first month.
  static std::shared_ptr<ExecutionMethod> makeWindowed(const Interval& interval);
};
