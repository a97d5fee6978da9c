#pragma once

#include <memory>

#include "common/regression/RegressionTechnique.h"
#include "vocabulary/EnumTypes.h"

// Makes interpolators by their stored type.
class RegressionTechniqueFactory {
 public:
  // A new technique of the type, without a table. Throws std::invalid_argument
  // "RegressionTechniqueFactory::make(): invalid regressionType" for an unknown type.
  static std::shared_ptr<RegressionTechnique> make(RegressionType type);
  // A new CubicSplineTechnique.
  static std::shared_ptr<RegressionTechnique> makeCubicSpline();
};
