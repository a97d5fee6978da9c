#include "optimization/SystemGuaranteeCurveScenario.h"

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "optimization/SystemGuaranteeCurveSceneryCheck.h"
#include "vocabulary/Vocabulary.h"

SystemGuaranteeCurveScenario::SystemGuaranteeCurveScenario(unsigned int id,
                                                           const Interval& interval,
                                                           const std::string& name)
    : SystemGuaranteeCurveScenario(std::make_shared<ExecutionSystemGuaranteeCurve>(), id, interval,
                                   name) {
  getExecutionSystemGuaranteeCurve().configureAlgorithm(OptimizationAlgorithmType::pso);
}

SystemGuaranteeCurveScenario::SystemGuaranteeCurveScenario(
    const std::shared_ptr<ExecutionSystemGuaranteeCurve>& method, unsigned int id,
    const Interval& interval, const std::string& name)
    : SwarmScenario(method, id, interval, name) {}

Enum<ScenarioType> SystemGuaranteeCurveScenario::getScenarioType() const {
  return Vocabulary::of(ScenarioType::systemGuaranteeCurve);
}

ExecutionSystemGuaranteeCurve& SystemGuaranteeCurveScenario::getExecutionSystemGuaranteeCurve()
    const {
  return static_cast<ExecutionSystemGuaranteeCurve&>(*getExecutionMethod());
}

bool SystemGuaranteeCurveScenario::run(const Progress& progress) {
  const bool finished = runSwarm(progress);
  clearResultSeries();
  return finished;
}

void SystemGuaranteeCurveScenario::setAutoOutReservoir() {
  const auto reservoirs = ElementsFilter::filterByType(
      NetworkUtils::levelOrderLegacy(ElementsFilter::filterByEnabledElements(getElements())),
      ElementSets::reservoir());
  if (!reservoirs.empty()) {
    getExecutionSystemGuaranteeCurve().setOutSystemReservoirId(reservoirs.back()->getId());
  }
}

std::shared_ptr<Scenario> SystemGuaranteeCurveScenario::copySpecific() const {
  return std::make_shared<SystemGuaranteeCurveScenario>(
      std::static_pointer_cast<ExecutionSystemGuaranteeCurve>(getExecutionMethod()->copy()),
      getId(), getInterval(), getName());
}

std::shared_ptr<SceneryCheck> SystemGuaranteeCurveScenario::makeSceneryCheck() {
  return std::make_shared<SystemGuaranteeCurveSceneryCheck>(weak_from_this());
}
