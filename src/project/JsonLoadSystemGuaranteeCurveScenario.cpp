#include "project/JsonLoadSystemGuaranteeCurveScenario.h"

#include "optimization/SystemGuaranteeCurveScenario.h"

std::shared_ptr<Scenario> JsonLoadSystemGuaranteeCurveScenario::getInstance(
    const std::shared_ptr<ExecutionMethod>& method, unsigned int id, const Interval& interval,
    const std::string& name) const {
  return std::make_shared<SystemGuaranteeCurveScenario>(
      std::static_pointer_cast<ExecutionSystemGuaranteeCurve>(method), id, interval, name);
}
