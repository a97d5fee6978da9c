#pragma once

#include <nlohmann/json.hpp>

#include "project/JsonLoadReleaseRule.h"

// Reads a learned rule written by JsonSaveMachineLearningRegressionColVolumesReleaseRule: the
// reservoirs, the settings, the entries, then the keys of the model's kind. An unknown average,
// distance or error names itself: "invalid MachineLearningRegressionAverageCalculatorType value"
// and the like. The model learns once the scenario's reservoirs are resolved.
class JsonLoadMachineLearningRegressionColVolumesReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;

 protected:
  virtual void loadSpecific(const nlohmann::json& object) const = 0;
};
