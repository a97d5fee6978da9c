#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveRegressionTechnique.h"

// Chooses the writer of an interpolator by its name ("CubicSpline").
class JsonSaveRegressionTechniqueFactory {
 public:
  // The writer of technique. Throws std::invalid_argument
  // "JsonSaveRegressionTechniqueFactory::make(): invalid regressionType" for a technique without a
  // writer, or none.
  static std::shared_ptr<JsonSaveRegressionTechnique> make(
      const std::shared_ptr<RegressionTechnique>& technique);
  // The names of the techniques that have a writer.
  static std::vector<std::string> keys();
};
