#pragma once

#include "project/JsonSaveExecutionMethod.h"

// Writes the method of a guarantee curve: after the common part, "numOfIterations", "OnlyQ90"
// and "GuaranteeCurveStr":{"guaranteeValues":[levels asked, %],"reservoirsIds":[ids],
// "releases":[[m³/s per reservoir] per level found],"guarantees":[levels found, %]}.
class JsonSaveExecutionGuaranteeCurve : public JsonSaveExecutionMethod {
 public:
  using JsonSaveExecutionMethod::JsonSaveExecutionMethod;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
