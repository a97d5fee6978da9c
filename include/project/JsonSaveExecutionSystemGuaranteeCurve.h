#pragma once

#include "project/JsonSaveExecutionMethod.h"

// Writes the method of a system guarantee curve: after the common part, "outSystemReservoirId",
// "OnlyQ90", "OptAlgorithm" (the swarm) and "SystemGuaranteeCurveStr":{"guaranteeCurveValues":
// [levels found, %],"outReservoirId":<id>,"releases":[m³/s per level found]}.
class JsonSaveExecutionSystemGuaranteeCurve : public JsonSaveExecutionMethod {
 public:
  using JsonSaveExecutionMethod::JsonSaveExecutionMethod;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
