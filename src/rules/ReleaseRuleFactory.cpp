#include "rules/ReleaseRuleFactory.h"

#include <map>
#include <stdexcept>

#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/KNNRegressionColVolumesReleaseRule.h"
#include "rules/NoneReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoPeriodicReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/RegressionRandomForestColVolumesReleaseRule.h"
#include "rules/RegressionTreeColVolumesReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOnePeriodicReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "rules/VolDepTwoPeriodicReleaseRule.h"
#include "rules/VolDepTwoStaticReleaseRule.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Maker = std::shared_ptr<ReleaseRule> (*)();

// The one table of rules: the names come from the vocabulary, so a new rule is one row here.
const std::map<ReleaseRuleType, Maker>& makersByType() {
  using R = ReleaseRuleType;
  static const std::map<ReleaseRuleType, Maker> table = {
      {R::none, ReleaseRuleFactory::makeNoneReleaseRule},
      {R::constant, ReleaseRuleFactory::makeConstReleaseRule},
      {R::periodic, ReleaseRuleFactory::makePeriodicReleaseRule},
      {R::serie, ReleaseRuleFactory::makeSerieReleaseRule},
      {R::hydrologicalState, ReleaseRuleFactory::makeHydrologicalStateReleaseRule},
      {R::staticVolumeDependence1, ReleaseRuleFactory::makeVolDepOneStaticRelease},
      {R::periodicVolumeDependence1, ReleaseRuleFactory::makeVolDepOnePeriodicRelease},
      {R::staticVolumeDependence2, ReleaseRuleFactory::makeVolDepTwoStaticRelease},
      {R::periodicVolumeDependence2, ReleaseRuleFactory::makeVolDepTwoPeriodicRelease},
      {R::knnRegression, ReleaseRuleFactory::makeKNNRegressionColVolumesRelease},
      {R::regressionTree, ReleaseRuleFactory::makeRegressionTreeColVolumesRelease},
      {R::randomForest, ReleaseRuleFactory::makeRegressionRandomForestColVolumesRelease},
      {R::optNone, ReleaseRuleFactory::makeOptNoneReleaseRule},
      {R::optConstant, ReleaseRuleFactory::makeOptConstReleaseRule},
      {R::optPeriodic, ReleaseRuleFactory::makeOptPeriodicReleaseRule},
      {R::optSerie, ReleaseRuleFactory::makeOptSerieReleaseRule},
      {R::optStaticVolumeDependence1, ReleaseRuleFactory::makeOptVolDepOneStaticRelease},
      {R::optPeriodicVolumeDependence1, ReleaseRuleFactory::makeOptVolDepOnePeriodicRelease},
      {R::optStaticVolumeDependence2, ReleaseRuleFactory::makeOptVolDepTwoStaticRelease},
      {R::optPeriodicVolumeDependence2, ReleaseRuleFactory::makeOptVolDepTwoPeriodicRelease},
      {R::optHydrologicalState, ReleaseRuleFactory::makeOptHydrologicalStateReleaseRule},
  };
  return table;
}

const std::map<std::string, Maker>& makersByName() {
  static const std::map<std::string, Maker> table = [] {
    std::map<std::string, Maker> result;
    for (const auto& [type, maker] : makersByType()) {
      result.emplace(Vocabulary::of(type).getName(), maker);
    }
    return result;
  }();
  return table;
}

template <typename Key>
std::shared_ptr<ReleaseRule> makeFrom(const std::map<Key, Maker>& makers, const Key& key) {
  auto it = makers.find(key);
  if (it == makers.end()) {
    throw std::invalid_argument("ReleaseRuleFactory::make(): invalid ReleaseRuleType");
  }
  return it->second();
}

}  // namespace

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::make(ReleaseRuleType type) {
  return makeFrom(makersByType(), type);
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::make(const std::string& name) {
  return makeFrom(makersByName(), name);
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeNoneReleaseRule() {
  return std::make_shared<NoneReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeConstReleaseRule() {
  return std::make_shared<ConstReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makePeriodicReleaseRule() {
  return std::make_shared<PeriodicReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeSerieReleaseRule() {
  return std::make_shared<SerieReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeHydrologicalStateReleaseRule() {
  return std::make_shared<HydrologicalStateReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeVolDepOneStaticRelease() {
  return std::make_shared<VolDepOneStaticReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeVolDepOnePeriodicRelease() {
  return std::make_shared<VolDepOnePeriodicReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeVolDepTwoStaticRelease() {
  return std::make_shared<VolDepTwoStaticReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeVolDepTwoPeriodicRelease() {
  return std::make_shared<VolDepTwoPeriodicReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeKNNRegressionColVolumesRelease() {
  return std::make_shared<KNNRegressionColVolumesReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeRegressionTreeColVolumesRelease() {
  return std::make_shared<RegressionTreeColVolumesReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeRegressionRandomForestColVolumesRelease() {
  return std::make_shared<RegressionRandomForestColVolumesReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptNoneReleaseRule() {
  return std::make_shared<OptNoneReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptConstReleaseRule() {
  return std::make_shared<OptConstReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptPeriodicReleaseRule() {
  return std::make_shared<OptPeriodicReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptSerieReleaseRule() {
  return std::make_shared<OptSerieReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptHydrologicalStateReleaseRule() {
  return std::make_shared<OptHydrologicalStateReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptVolDepOneStaticRelease() {
  return std::make_shared<OptVolDepOneStaticReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptVolDepOnePeriodicRelease() {
  return std::make_shared<OptVolDepOnePeriodicReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptVolDepTwoStaticRelease() {
  return std::make_shared<OptVolDepTwoStaticReleaseRule>();
}

std::shared_ptr<ReleaseRule> ReleaseRuleFactory::makeOptVolDepTwoPeriodicRelease() {
  return std::make_shared<OptVolDepTwoPeriodicReleaseRule>();
}
