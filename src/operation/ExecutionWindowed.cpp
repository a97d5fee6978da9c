#include "operation/ExecutionWindowed.h"

#include "common/PeriodWalker.h"
#include "core/IntervalWindowed.h"
#include "core/KOVACoreProgressBar.h"
#include "core/ResultFactory.h"
#include "operation/OperationSystem.h"

ExecutionWindowed::ExecutionWindowed() : ExecutionMethod(ExecutionType::windowed) {}

void ExecutionWindowed::createResults(const Elements& elements, const Interval& interval,
                                      const Enum<ScenarioType>& scenarioType) {
  const std::vector<Interval> windows = IntervalWindowed::makeIntervals(
      interval, getYearsDate(), getWindowSize(), getExecutionType().getType());
  for (const auto& element : elements) {
    if (!element->isEnabled()) continue;
    element->setOutputSeries(ResultFactory::make(
        {getExecutionType().getType(), element->getType(), scenarioType.getType()},
        static_cast<unsigned int>(windows.size())));
    for (unsigned int i = 0; i < windows.size(); ++i) element->setOutputInterval(i, windows[i]);
  }
}

bool ExecutionWindowed::run(const Interval& interval,
                            const std::shared_ptr<OperationSystem>& operation,
                            const Progress& progress) {
  const std::vector<Interval> windows = IntervalWindowed::makeIntervals(
      interval, getYearsDate(), getWindowSize(), getExecutionType().getType());
  KOVACoreProgressBar progressBar(0, static_cast<unsigned int>(windows.size()), progress);
  for (unsigned int i = 0; i < windows.size(); ++i) {
    operation->setWindowIndex(i);
    operation->setInterval(windows[i]);
    PeriodWalker::forEach(windows[i], [&](const Date& date) {
      operation->setDate(date);
      operation->runModel();
    });
    if (!progressBar.update()) return false;
  }
  return true;
}

std::shared_ptr<ExecutionMethod> ExecutionWindowed::copySpecific() const {
  return std::make_shared<ExecutionWindowed>();
}
