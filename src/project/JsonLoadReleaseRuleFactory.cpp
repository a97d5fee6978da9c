#include "project/JsonLoadReleaseRuleFactory.h"

#include <functional>

#include "project/JsonLoadHydrologicalStateReleaseRule.h"
#include "project/JsonLoadKNNRegressionColVolumesReleaseRule.h"
#include "project/JsonLoadOptReleaseRule.h"
#include "project/JsonLoadOptVolDepReleaseRule.h"
#include "project/JsonLoadRegressionRandomForestColVolumesReleaseRule.h"
#include "project/JsonLoadRegressionTreeColVolumesReleaseRule.h"
#include "project/JsonLoadVolDepOneReleaseRule.h"
#include "project/JsonLoadVolDepTwoReleaseRule.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonLoadReleaseRule>(
    const std::shared_ptr<ReleaseRule>&, const std::shared_ptr<Scenario>&)>;

template <typename Reader>
std::shared_ptr<JsonLoadReleaseRule> makeReader(const std::shared_ptr<ReleaseRule>& rule,
                                                const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Reader>(rule, scenario);
}

const std::string& nameOf(ReleaseRuleType type) { return Vocabulary::of(type).getName(); }

const JsonMakerTable<Maker>& makers() {
  using R = ReleaseRuleType;
  static const JsonMakerTable<Maker> table(
      {
          {nameOf(R::none), makeReader<JsonLoadReleaseRule>},
          {nameOf(R::constant), makeReader<JsonLoadConstReleaseRule>},
          {nameOf(R::periodic), makeReader<JsonLoadPeriodicReleaseRule>},
          {nameOf(R::serie), makeReader<JsonLoadSerieReleaseRule>},
          {nameOf(R::hydrologicalState), makeReader<JsonLoadHydrologicalStateReleaseRule>},
          {nameOf(R::staticVolumeDependence1), makeReader<JsonLoadVolDepOneReleaseRule>},
          {nameOf(R::periodicVolumeDependence1), makeReader<JsonLoadVolDepOneReleaseRule>},
          {nameOf(R::staticVolumeDependence2), makeReader<JsonLoadVolDepTwoReleaseRule>},
          {nameOf(R::periodicVolumeDependence2), makeReader<JsonLoadVolDepTwoReleaseRule>},
          {nameOf(R::knnRegression), makeReader<JsonLoadKNNRegressionColVolumesReleaseRule>},
          {nameOf(R::regressionTree), makeReader<JsonLoadRegressionTreeColVolumesReleaseRule>},
          {nameOf(R::randomForest),
           makeReader<JsonLoadRegressionRandomForestColVolumesReleaseRule>},
          {nameOf(R::optNone), makeReader<JsonLoadReleaseRule>},
          {nameOf(R::optConstant), makeReader<JsonLoadOptConstReleaseRule>},
          {nameOf(R::optPeriodic), makeReader<JsonLoadOptPeriodicReleaseRule>},
          {nameOf(R::optSerie), makeReader<JsonLoadOptSerieReleaseRule>},
          {nameOf(R::optStaticVolumeDependence1), makeReader<JsonLoadOptVolDepOneReleaseRule>},
          {nameOf(R::optPeriodicVolumeDependence1), makeReader<JsonLoadOptVolDepOneReleaseRule>},
          {nameOf(R::optStaticVolumeDependence2), makeReader<JsonLoadOptVolDepTwoReleaseRule>},
          {nameOf(R::optPeriodicVolumeDependence2), makeReader<JsonLoadOptVolDepTwoReleaseRule>},
          {nameOf(R::optHydrologicalState), makeReader<JsonLoadOptHydrologicalStateReleaseRule>},
      },
      "JsonLoadReleaseRuleFactory::make(): invalid ReleaseRuleType");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadReleaseRule> JsonLoadReleaseRuleFactory::make(
    const std::string& type, const std::shared_ptr<ReleaseRule>& rule,
    const std::shared_ptr<Scenario>& scenario) {
  return makers().at(type)(rule, scenario);
}

std::vector<std::string> JsonLoadReleaseRuleFactory::keys() { return makers().keys(); }
