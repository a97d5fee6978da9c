#pragma once

#include <memory>

#include "project/JsonSaveExecutionMethod.h"

// Writes the method of a rule optimisation: after the common part, "objectiveFunctions"
// ([{"isMinimization":0|1,"name":"<function>","elementsIds":[ids]},...] in the order of the
// objectives), "personalizedObjectiveFunctions" (none yet: []) and "OptAlgorithm", the swarm.
class JsonSaveExecutionOptimization : public JsonSaveExecutionMethod {
 public:
  using JsonSaveExecutionMethod::JsonSaveExecutionMethod;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
