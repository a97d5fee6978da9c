#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "project/JsonLoadExecutionMethod.h"

// Reads the method of a guarantee curve: the common part, then "numOfIterations", "OnlyQ90" and
// "GuaranteeCurveStr" (the levels asked, and the curve found: its reservoirs, its levels and one
// row of releases per level, as many as there are reservoirs), each optional.
class JsonLoadExecutionGuaranteeCurve : public JsonLoadExecutionMethod {
 public:
  JsonLoadExecutionGuaranteeCurve();

 protected:
  std::shared_ptr<ExecutionMethod> makeInstance(const Interval& interval) const override;
  void loadSpecific(const nlohmann::json& object, ExecutionMethod& method) const override;
};
