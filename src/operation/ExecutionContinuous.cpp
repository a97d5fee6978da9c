#include "operation/ExecutionContinuous.h"

#include "common/Calendar.h"
#include "core/KOVACoreProgressBar.h"
#include "operation/OperationSystem.h"

ExecutionContinuous::ExecutionContinuous() : ExecutionMethod(ExecutionType::continuous) {}

void ExecutionContinuous::createResults(const Elements& elements, const Interval& interval,
                                        const Enum<ScenarioType>& scenarioType) {
  createContinuousResults(elements, interval, scenarioType.getType());
}

bool ExecutionContinuous::run(const Interval& interval,
                              const std::shared_ptr<OperationSystem>& operation,
                              const Progress& progress) {
  operation->setWindowIndex(0);
  KOVACoreProgressBar progressBar(0, interval.period(), progress);
  Date date = interval.getBegin();
  while (date <= interval.getEnd()) {
    operation->setDate(date);
    operation->runModel();
    if (!progressBar.update()) return false;
    date += Calendar::incInterval(date, interval);
  }
  return true;
}

std::shared_ptr<ExecutionMethod> ExecutionContinuous::copySpecific() const {
  return std::make_shared<ExecutionContinuous>();
}
