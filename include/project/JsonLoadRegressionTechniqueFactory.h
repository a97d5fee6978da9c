#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/regression/RegressionTechnique.h"

// Makes a reservoir's interpolator by the name its object gives ("CubicSpline"); the techniques
// known so far keep nothing else in the file.
class JsonLoadRegressionTechniqueFactory {
 public:
  // A new technique named type. Throws std::invalid_argument
  // "JsonLoadRegressionTechniqueFactory::make(): invalid regressionType" for another name.
  static std::shared_ptr<RegressionTechnique> make(const std::string& type);
  // The names of the techniques that can be read.
  static std::vector<std::string> keys();
};
