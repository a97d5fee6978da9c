#include "core/SettingsFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/ElementSets.h"
#include "core/LinkRuleSettings.h"
#include "core/PriorityDemandSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "core/PriorityReservoirSettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/ReservoirRuleSettings.h"

namespace {

using Maker = std::function<std::shared_ptr<Settings>()>;
using Makers = std::map<KeySettings, Maker>;

// The kinds run by rules share the settings of every element but the reservoir.
void addRuleMakers(Makers& makers, ScenarioType scenario, const Maker& reservoirMaker) {
  makers[{scenario, ElementType::reservoir}] = reservoirMaker;
  for (ElementType demand : ElementSets::demands()) {
    makers[{scenario, demand}] = SettingsFactory::makeDemandRule;
  }
  makers[{scenario, ElementType::junction}] = SettingsFactory::makeJunctionRule;
  makers[{scenario, ElementType::basin}] = SettingsFactory::makeBasinRule;
  for (ElementType link : ElementSets::links()) {
    makers[{scenario, link}] = SettingsFactory::makeLinkRule;
  }
}

void addPriorityMakers(Makers& makers) {
  const ScenarioType scenario = ScenarioType::priorityOptimizer;
  makers[{scenario, ElementType::reservoir}] = SettingsFactory::makeReservoirPriority;
  for (ElementType demand : ElementSets::consumerDemands()) {
    makers[{scenario, demand}] = SettingsFactory::makeDemandPriority;
  }
  makers[{scenario, ElementType::drain}] = SettingsFactory::makeDrainDemandPriority;
  makers[{scenario, ElementType::junction}] = SettingsFactory::makeJunctionPriority;
  makers[{scenario, ElementType::basin}] = SettingsFactory::makeBasinPriority;
  for (ElementType link : ElementSets::links()) {
    makers[{scenario, link}] = SettingsFactory::makeLinkPriority;
  }
}

const Makers& makers() {
  static const Makers table = [] {
    Makers result;
    addPriorityMakers(result);
    addRuleMakers(result, ScenarioType::ruleSimulator, SettingsFactory::makeReservoirRule);
    addRuleMakers(result, ScenarioType::ruleOptimizer, SettingsFactory::makeReservoirOptRule);
    addRuleMakers(result, ScenarioType::guaranteeCurve,
                  SettingsFactory::makeReservoirGuaranteeCurve);
    addRuleMakers(result, ScenarioType::systemGuaranteeCurve,
                  SettingsFactory::makeReservoirSystemGuaranteeCurve);
    return result;
  }();
  return table;
}

template <typename T>
std::shared_ptr<Settings> makePriority(unsigned int priority) {
  auto settings = std::make_shared<T>();
  settings->setPriority(priority);
  return settings;
}

std::shared_ptr<Settings> makeGuaranteeCurve(bool isGuaranteeCurve) {
  auto settings = std::make_shared<ReservoirGuaranteeCurveSettings>();
  settings->setIsGuaranteeCurve(isGuaranteeCurve);
  return settings;
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

// The optimiser gives the reservoir its optimisable rule when it sets up its decision variables.
std::shared_ptr<Settings> SettingsFactory::makeReservoirOptRule() {
  return std::make_shared<ReservoirRuleSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeReservoirGuaranteeCurve() {
  return makeGuaranteeCurve(false);
}

std::shared_ptr<Settings> SettingsFactory::makeReservoirSystemGuaranteeCurve() {
  return makeGuaranteeCurve(true);
}

std::shared_ptr<Settings> SettingsFactory::makeReservoirPriority() {
  return makePriority<PriorityReservoirSettings>(99);
}

std::shared_ptr<Settings> SettingsFactory::makeDemandPriority() {
  return std::make_shared<PriorityDemandSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeDrainDemandPriority() {
  return makePriority<PriorityDrainDemandSettings>(99);
}

std::shared_ptr<Settings> SettingsFactory::makeJunctionPriority() {
  return std::make_shared<PriorityJunctionSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeBasinPriority() {
  return std::make_shared<PriorityBasinSettings>();
}

std::shared_ptr<Settings> SettingsFactory::makeLinkPriority() {
  return std::make_shared<PriorityLinkSettings>();
}
