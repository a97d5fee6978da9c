#include "optimization/SceneryTransformationFactory.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "optimization/SceneryKindTransformation.h"
#include "vocabulary/EnumTypes.h"

namespace {

using Maker = std::function<std::shared_ptr<SceneryTransformation>()>;

// Every ordered pair of two different kinds, by their type ids.
std::map<std::pair<int, int>, Maker> everyDirection() {
  const std::vector<ScenarioType> kinds = {
      ScenarioType::priorityOptimizer, ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
      ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve};
  std::map<std::pair<int, int>, Maker> table;
  for (const ScenarioType from : kinds) {
    for (const ScenarioType to : kinds) {
      if (from == to) continue;
      table[{static_cast<int>(from), static_cast<int>(to)}] = [from, to] {
        return std::make_shared<SceneryKindTransformation>(from, to);
      };
    }
  }
  return table;
}

const std::map<std::pair<int, int>, Maker>& makers() {
  static const std::map<std::pair<int, int>, Maker> table = everyDirection();
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
