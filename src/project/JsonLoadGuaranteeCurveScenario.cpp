#include "project/JsonLoadGuaranteeCurveScenario.h"

#include "optimization/GuaranteeCurveScenario.h"

std::shared_ptr<Scenario> JsonLoadGuaranteeCurveScenario::getInstance(
    const std::shared_ptr<ExecutionMethod>& method, unsigned int id, const Interval& interval,
    const std::string& name) const {
  return std::make_shared<GuaranteeCurveScenario>(
      std::static_pointer_cast<ExecutionGuaranteeCurve>(method), id, interval, name);
}
