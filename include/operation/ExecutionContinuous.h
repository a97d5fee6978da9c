#pragma once

#include "core/ExecutionMethod.h"

// Walks the whole interval once, period by period, with the results in window 0. Progress
// counts periods.
class ExecutionContinuous : public ExecutionMethod {
 public:
  ExecutionContinuous();

  void createResults(const Elements& elements, const Interval& interval,
                     const Enum<ScenarioType>& scenarioType) override;
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;
};
