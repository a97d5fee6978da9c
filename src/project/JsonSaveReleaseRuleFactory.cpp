#include "project/JsonSaveReleaseRuleFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveHydrologicalStateReleaseRule.h"
#include "project/JsonSaveKNNRegressionColVolumesReleaseRule.h"
#include "project/JsonSaveOptReleaseRule.h"
#include "project/JsonSaveOptVolDepReleaseRule.h"
#include "project/JsonSaveRegressionRandomForestColVolumesReleaseRule.h"
#include "project/JsonSaveRegressionTreeColVolumesReleaseRule.h"
#include "project/JsonSaveVolDepOneReleaseRule.h"
#include "project/JsonSaveVolDepTwoReleaseRule.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker =
    std::function<std::shared_ptr<JsonSaveReleaseRule>(const std::shared_ptr<ReleaseRule>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveReleaseRule> makeWriter(const std::shared_ptr<ReleaseRule>& rule) {
  return std::make_shared<Writer>(rule);
}

const std::string& nameOf(ReleaseRuleType type) { return Vocabulary::of(type).getName(); }

const JsonMakerTable<Maker>& makers() {
  using R = ReleaseRuleType;
  static const JsonMakerTable<Maker> table(
      {
          {nameOf(R::none), makeWriter<JsonSaveReleaseRule>},
          {nameOf(R::constant), makeWriter<JsonSaveConstReleaseRule>},
          {nameOf(R::periodic), makeWriter<JsonSavePeriodicReleaseRule>},
          {nameOf(R::serie), makeWriter<JsonSaveSerieReleaseRule>},
          {nameOf(R::hydrologicalState), makeWriter<JsonSaveHydrologicalStateReleaseRule>},
          {nameOf(R::staticVolumeDependence1), makeWriter<JsonSaveVolDepOneReleaseRule>},
          {nameOf(R::periodicVolumeDependence1), makeWriter<JsonSaveVolDepOneReleaseRule>},
          {nameOf(R::staticVolumeDependence2), makeWriter<JsonSaveVolDepTwoReleaseRule>},
          {nameOf(R::periodicVolumeDependence2), makeWriter<JsonSaveVolDepTwoReleaseRule>},
          {nameOf(R::knnRegression), makeWriter<JsonSaveKNNRegressionColVolumesReleaseRule>},
          {nameOf(R::regressionTree), makeWriter<JsonSaveRegressionTreeColVolumesReleaseRule>},
          {nameOf(R::randomForest),
           makeWriter<JsonSaveRegressionRandomForestColVolumesReleaseRule>},
          {nameOf(R::optNone), makeWriter<JsonSaveReleaseRule>},
          {nameOf(R::optConstant), makeWriter<JsonSaveOptConstReleaseRule>},
          {nameOf(R::optPeriodic), makeWriter<JsonSaveOptPeriodicReleaseRule>},
          {nameOf(R::optSerie), makeWriter<JsonSaveOptSerieReleaseRule>},
          {nameOf(R::optStaticVolumeDependence1), makeWriter<JsonSaveOptVolDepOneReleaseRule>},
          {nameOf(R::optPeriodicVolumeDependence1), makeWriter<JsonSaveOptVolDepOneReleaseRule>},
          {nameOf(R::optStaticVolumeDependence2), makeWriter<JsonSaveOptVolDepTwoReleaseRule>},
          {nameOf(R::optPeriodicVolumeDependence2), makeWriter<JsonSaveOptVolDepTwoReleaseRule>},
          {nameOf(R::optHydrologicalState), makeWriter<JsonSaveOptHydrologicalStateReleaseRule>},
      },
      "JsonSaveReleaseRuleFactory::make(): invalid ReleaseRuleType");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveReleaseRule> JsonSaveReleaseRuleFactory::make(
    const std::shared_ptr<ReleaseRule>& rule) {
  return makers().at(rule->getType().getName())(rule);
}

std::vector<std::string> JsonSaveReleaseRuleFactory::keys() { return makers().keys(); }
