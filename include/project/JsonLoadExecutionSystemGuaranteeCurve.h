#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "project/JsonLoadExecutionMethod.h"

// Reads the method of a system guarantee curve: the common part, then "outSystemReservoirId",
// "OnlyQ90", "OptAlgorithm" (required; "SMPSO", "OMOPSO" or "PSO") and "SystemGuaranteeCurveStr"
// (the levels found and one flow per level), the others optional. The method's out reservoir
// stands where the curve names another.
class JsonLoadExecutionSystemGuaranteeCurve : public JsonLoadExecutionMethod {
 public:
  JsonLoadExecutionSystemGuaranteeCurve();

 protected:
  std::shared_ptr<ExecutionMethod> makeInstance(const Interval& interval) const override;
  void loadSpecific(const nlohmann::json& object, ExecutionMethod& method) const override;
};
