#include "core/SettingsFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/ElementSets.h"
#include "core/LinkRuleSettings.h"
#include "core/ReservoirRuleSettings.h"

namespace {

using Maker = std::function<std::shared_ptr<Settings>()>;

void addRuleMakers(std::map<KeySettings, Maker>& makers, ScenarioType scenario) {
  makers[{scenario, ElementType::reservoir}] = SettingsFactory::makeReservoirRule;
  for (ElementType demand : ElementSets::demands()) {
    makers[{scenario, demand}] = SettingsFactory::makeDemandRule;
  }
  makers[{scenario, ElementType::junction}] = SettingsFactory::makeJunctionRule;
  makers[{scenario, ElementType::basin}] = SettingsFactory::makeBasinRule;
  for (ElementType link : ElementSets::links()) {
    makers[{scenario, link}] = SettingsFactory::makeLinkRule;
  }
}

const std::map<KeySettings, Maker>& makers() {
  static const std::map<KeySettings, Maker> table = [] {
    std::map<KeySettings, Maker> result;
    addRuleMakers(result, ScenarioType::ruleSimulator);
    return result;
  }();
  return table;
}

}  // namespace

std::shared_ptr<Settings> SettingsFactory::make(const KeySettings& key) {
  auto it = makers().find(key);
  if (it == makers().end()) {
    throw std::invalid_argument("SettingsFactory::make(): invalid parameter key");
  }
  return it->second();
}

std::shared_ptr<Settings> SettingsFactory::makeReservoirRule() {
  return std::make_shared<ReservoirRuleSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeDemandRule() {
  return std::make_shared<DemandRuleSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeJunctionRule() {
  return std::make_shared<JunctionRuleSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeBasinRule() {
  return std::make_shared<BasinRuleSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeLinkRule() {
  return std::make_shared<LinkRuleSettings>();
}
