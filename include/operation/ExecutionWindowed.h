#pragma once

#include "core/ExecutionMethod.h"

// Runs the scenario as an ensemble of windows that all start in the same month of different
// years, each from the reservoirs' initial volumes; window i keeps its results in container i.
// Progress counts windows.
class ExecutionWindowed : public ExecutionMethod {
 public:
  ExecutionWindowed();

  void createResults(const Elements& elements, const Interval& interval,
                     const Enum<ScenarioType>& scenarioType) override;
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;
};
