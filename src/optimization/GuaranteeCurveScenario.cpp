#include "optimization/GuaranteeCurveScenario.h"

#include "checks/SceneryCheck.h"
#include "vocabulary/Vocabulary.h"

GuaranteeCurveScenario::GuaranteeCurveScenario(unsigned int id, const Interval& interval,
                                               const std::string& name)
    : GuaranteeCurveScenario(std::make_shared<ExecutionGuaranteeCurve>(), id, interval, name) {}

GuaranteeCurveScenario::GuaranteeCurveScenario(
    const std::shared_ptr<ExecutionGuaranteeCurve>& method, unsigned int id,
    const Interval& interval, const std::string& name)
    : RuleScenario(method, id, interval, name) {}

Enum<ScenarioType> GuaranteeCurveScenario::getScenarioType() const {
  return Vocabulary::of(ScenarioType::guaranteeCurve);
}

ExecutionGuaranteeCurve& GuaranteeCurveScenario::getExecutionGuaranteeCurve() const {
  return static_cast<ExecutionGuaranteeCurve&>(*getExecutionMethod());
}

bool GuaranteeCurveScenario::run(const Progress& progress) {
  auto& execution = getExecutionGuaranteeCurve();
  execution.setElements(getElements());
  execution.setSettingsManager(&getSettingsManager());
  execution.setIsolated(false);
  const bool finished = RuleScenario::run(progress);
  clearResultSeries();
  return finished;
}

std::shared_ptr<Scenario> GuaranteeCurveScenario::copySpecific() const {
  return std::make_shared<GuaranteeCurveScenario>(
      std::static_pointer_cast<ExecutionGuaranteeCurve>(getExecutionMethod()->copy()), getId(),
      getInterval(), getName());
}

std::shared_ptr<SceneryCheck> GuaranteeCurveScenario::makeSceneryCheck() {
  return std::make_shared<GuaranteeCurveSceneryCheck>(weak_from_this());
}
