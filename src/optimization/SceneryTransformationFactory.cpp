#include "optimization/SceneryTransformationFactory.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

#include "optimization/GuaranteeCurveToRuleTransformation.h"
#include "vocabulary/EnumTypes.h"

namespace {

using Maker = std::function<std::shared_ptr<SceneryTransformation>()>;

int kind(ScenarioType type) { return static_cast<int>(type); }

const std::map<std::pair<int, int>, Maker>& makers() {
  static const std::map<std::pair<int, int>, Maker> table = {
      {{kind(ScenarioType::guaranteeCurve), kind(ScenarioType::ruleSimulator)},
       [] { return std::make_shared<GuaranteeCurveToRuleTransformation>(); }},
  };
  return table;
}

}  // namespace

std::shared_ptr<SceneryTransformation> SceneryTransformationFactory::make(int from, int to) {
  auto it = makers().find({from, to});
  if (it == makers().end()) {
    throw std::invalid_argument("SceneryTransformationFactory::make(): no transformation from " +
                                std::to_string(from) + " to " + std::to_string(to));
  }
  return it->second();
}
