#include "scenario/ConfigureRuleElementFromPriorityAddonFactory.h"

#include <map>
#include <stdexcept>

#include "scenario/ConfigureRuleElementFromPriorityKNNAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRandomForestAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRegressionTreeAddon.h"

using Addon = std::shared_ptr<ConfigureRuleElementFromPriorityAddon>;

Addon ConfigureRuleElementFromPriorityAddonFactory::make(ConfigureRuleElementType type) {
  using C = ConfigureRuleElementType;
  static const std::map<ConfigureRuleElementType, Addon (*)()> makers{
      {C::defaultSerie, makeDefaultAddon},
      {C::knn, makeKNNAddon},
      {C::regressionTree, makeRegressionTreeAddon},
      {C::randomForest, makeRegressionRandomForest},
  };
  const auto found = makers.find(type);
  if (found == makers.end()) {
    throw std::invalid_argument(
        "ConfigureRuleElementFromPriorityAddonFactory::make(): invalid type");
  }
  return found->second();
}

Addon ConfigureRuleElementFromPriorityAddonFactory::makeDefaultAddon() {
  return std::make_shared<ConfigureRuleElementFromPriorityAddon>();
}

Addon ConfigureRuleElementFromPriorityAddonFactory::makeKNNAddon() {
  return std::make_shared<ConfigureRuleElementFromPriorityKNNAddon>();
}

Addon ConfigureRuleElementFromPriorityAddonFactory::makeRegressionTreeAddon() {
  return std::make_shared<ConfigureRuleElementFromPriorityRegressionTreeAddon>();
}

Addon ConfigureRuleElementFromPriorityAddonFactory::makeRegressionRandomForest() {
  return std::make_shared<ConfigureRuleElementFromPriorityRandomForestAddon>();
}
