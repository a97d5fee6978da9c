#pragma once

#include "project/JsonSaveScenario.h"

// Writes a rule-optimisation scenario: the common keys, then its front, "solutions" (one row of
// decision variables per solution) and "objectiveFunctionsValues" (one row of objective values per
// solution), each value in 17 significant digits so that a solution read back is the one found.
class JsonSaveOptRuleScenery : public JsonSaveScenario {
 public:
  using JsonSaveScenario::JsonSaveScenario;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
