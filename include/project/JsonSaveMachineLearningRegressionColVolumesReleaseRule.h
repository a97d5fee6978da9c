#pragma once

#include <string>

#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveReleaseRule.h"

// Writes a learned rule: {"Reservoirs":[ids],"NumberOfEntriesForAverage":..,"Dataset":[{"Volumes":
// [hm³...],"Release":m³/s},...],"AverageCalculatorType":..,"DistanceCalculatorType":..,
// "ErrorType":..<keys of the model>}. The entries are written to 17 significant digits, so that a
// reloaded rule learns from the very same numbers.
class JsonSaveMachineLearningRegressionColVolumesReleaseRule : public JsonSaveReleaseRule {
 public:
  using JsonSaveReleaseRule::JsonSaveReleaseRule;
  std::string toJson() const override;

 protected:
  // The keys of the model's kind, after the common ones.
  virtual JsonSaveBuilder::Members toJsonSpecific() const = 0;
};
