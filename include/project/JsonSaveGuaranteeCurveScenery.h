#pragma once

#include "project/JsonSaveScenario.h"

// Writes a guarantee-curve scenario, of a reservoir or of a system: the common keys only; the
// curve is the method's.
class JsonSaveGuaranteeCurveScenery : public JsonSaveScenario {
 public:
  using JsonSaveScenario::JsonSaveScenario;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override { return {}; }
};
