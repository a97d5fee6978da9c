#include "optimization/GuaranteeCurveScenario.h"

#include "checks/SceneryCheck.h"
#include "scenario/ScenarioManager.h"
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

bool GuaranteeCurveScenario::run(const Progress& progress) { return searchCurve(progress, false); }

bool GuaranteeCurveScenario::runIsolated(const Progress& progress) {
  ScenarioManager& manager = ScenarioManager::getInstance();
  const std::shared_ptr<Scenario> previous = manager.getCurrentScenario();
  manager.setCurrentScenario(shared_from_this());
  try {
    const bool finished = searchCurve(progress, true);
    manager.setCurrentScenario(previous);
    return finished;
  } catch (...) {
    manager.setCurrentScenario(previous);
    throw;
  }
}

bool GuaranteeCurveScenario::searchCurve(const Progress& progress, bool isolated) {
  auto& execution = getExecutionGuaranteeCurve();
  execution.setElements(getElements());
  execution.setSettingsManager(&getSettingsManager());
  execution.setIsolated(isolated);
  const bool finished = RuleScenario::run(progress);
  execution.setIsolated(false);
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
