#include "project/JsonSaveRegressionTechniqueFactory.h"

#include <functional>

#include "common/regression/CubicSplineTechnique.h"
#include "project/JsonMakerTable.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveRegressionTechnique>(
    const std::shared_ptr<RegressionTechnique>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveRegressionTechnique> makeWriter(
    const std::shared_ptr<RegressionTechnique>& technique) {
  return std::make_shared<Writer>(technique);
}

const JsonMakerTable<Maker>& makers() {
  static const JsonMakerTable<Maker> table(
      {
          {CubicSplineTechnique().getName(), makeWriter<JsonSaveRegressionTechnique>},
      },
      "JsonSaveRegressionTechniqueFactory::make(): invalid regressionType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveRegressionTechnique> JsonSaveRegressionTechniqueFactory::make(
    const std::shared_ptr<RegressionTechnique>& technique) {
  // An absent technique has no name, which no row matches.
  return makers().at(technique ? technique->getName() : "")(technique);
}

std::vector<std::string> JsonSaveRegressionTechniqueFactory::keys() { return makers().keys(); }
