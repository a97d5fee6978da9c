#include "project/JsonLoadRegressionTechniqueFactory.h"

#include <functional>

#include "common/regression/CubicSplineTechnique.h"
#include "common/regression/RegressionTechniqueFactory.h"
#include "project/JsonMakerTable.h"

namespace {

using Maker = std::function<std::shared_ptr<RegressionTechnique>()>;

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {CubicSplineTechnique().getName(), RegressionTechniqueFactory::makeCubicSpline},
      },
      "JsonLoadRegressionTechniqueFactory::make(): invalid regressionType");
  return table;
}

}  // namespace

std::shared_ptr<RegressionTechnique> JsonLoadRegressionTechniqueFactory::make(
    const std::string& type) {
  return makers().at(type)();
}

std::vector<std::string> JsonLoadRegressionTechniqueFactory::keys() { return makers().keys(); }
