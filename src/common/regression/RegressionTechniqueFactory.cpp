#include "common/regression/RegressionTechniqueFactory.h"

#include <map>
#include <stdexcept>

#include "common/regression/CubicSplineTechnique.h"

std::shared_ptr<RegressionTechnique> RegressionTechniqueFactory::make(RegressionType type) {
  using Maker = std::shared_ptr<RegressionTechnique> (*)();
  static const std::map<RegressionType, Maker> makers = {
      {RegressionType::cubicSpline, &RegressionTechniqueFactory::makeCubicSpline}};
  const auto found = makers.find(type);
  if (found == makers.end()) {
    throw std::invalid_argument("RegressionTechniqueFactory::make(): invalid regressionType");
  }
  return found->second();
}

std::shared_ptr<RegressionTechnique> RegressionTechniqueFactory::makeCubicSpline() {
  return std::make_shared<CubicSplineTechnique>();
}
