#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <typeinfo>

#include "core/ElementSets.h"
#include "core/LinkRuleSettings.h"
#include "core/PriorityDemandSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "core/PriorityReservoirSettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/SettingsFactory.h"
#include "core/SettingsManager.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Check = std::function<bool(const std::shared_ptr<Settings>&)>;

// Exactly of class T, not of one derived from it.
template <typename T>
Check exactly() {
  return [](const std::shared_ptr<Settings>& settings) {
    if (!settings) return false;
    const Settings& made = *settings;
    return typeid(made) == typeid(T);
  };
}

// The class expected for each element type, by scenario type.
std::map<ElementType, Check> expectedClasses(ScenarioType scenario) {
  std::map<ElementType, Check> expected;
  const bool priority = scenario == ScenarioType::priorityOptimizer;
  for (ElementType demand : ElementSets::consumerDemands()) {
    expected[demand] = priority ? exactly<PriorityDemandSettings>() : exactly<DemandRuleSettings>();
  }
  expected[ElementType::drain] =
      priority ? exactly<PriorityDrainDemandSettings>() : exactly<DemandRuleSettings>();
  expected[ElementType::junction] =
      priority ? exactly<PriorityJunctionSettings>() : exactly<JunctionRuleSettings>();
  expected[ElementType::basin] =
      priority ? exactly<PriorityBasinSettings>() : exactly<BasinRuleSettings>();
  for (ElementType link : ElementSets::links()) {
    expected[link] = priority ? exactly<PriorityLinkSettings>() : exactly<LinkRuleSettings>();
  }
  const std::map<ScenarioType, Check> reservoir = {
      {ScenarioType::priorityOptimizer, exactly<PriorityReservoirSettings>()},
      {ScenarioType::ruleSimulator, exactly<ReservoirRuleSettings>()},
      {ScenarioType::ruleOptimizer, exactly<ReservoirRuleSettings>()},
      {ScenarioType::guaranteeCurve, exactly<ReservoirGuaranteeCurveSettings>()},
      {ScenarioType::systemGuaranteeCurve, exactly<ReservoirGuaranteeCurveSettings>()},
  };
  expected[ElementType::reservoir] = reservoir.at(scenario);
  return expected;
}

}  // namespace

TEST(SettingsFactory, EveryScenarioAndElementTypeMakesItsClass) {
  for (const auto& scenario : Vocabulary::scenarioTypes().getRows()) {
    for (const auto& [element, check] : expectedClasses(scenario.getType())) {
      SCOPED_TRACE(scenario.getName() + " / " + Vocabulary::of(element).getName());
      const std::shared_ptr<Settings> settings =
          SettingsFactory::make({scenario.getType(), element});
      EXPECT_TRUE(check(settings));
      EXPECT_TRUE(check(settings->copy()));
    }
  }
}

TEST(SettingsFactory, FamilyTypesAndUnknownScenariosHaveNoSettings) {
  for (ElementType family : {ElementType::genericDemand, ElementType::genericLink}) {
    EXPECT_THROW_TEXT(SettingsFactory::make({ScenarioType::ruleSimulator, family}),
                      std::invalid_argument, "SettingsFactory::make(): invalid parameter key");
  }
  EXPECT_THROW_TEXT(SettingsFactory::make({static_cast<ScenarioType>(5), ElementType::reservoir}),
                    std::invalid_argument, "SettingsFactory::make(): invalid parameter key");
}

TEST(SettingsFactory, MakersStartFromTheirDefaults) {
  auto reservoir =
      std::static_pointer_cast<PriorityReservoirSettings>(SettingsFactory::makeReservoirPriority());
  auto demand =
      std::static_pointer_cast<PriorityDemandSettings>(SettingsFactory::makeDemandPriority());
  auto drain =
      std::static_pointer_cast<PrioritySettings>(SettingsFactory::makeDrainDemandPriority());
  EXPECT_EQ(reservoir->getPriority(), 99u);
  EXPECT_FALSE(reservoir->getIsHydrologicalStateSystem());
  EXPECT_EQ(demand->getPriority(), 1u);
  EXPECT_EQ(drain->getPriority(), 99u);
  EXPECT_TRUE(reservoir->getPrioritySeries().empty());

  auto optRule =
      std::static_pointer_cast<ReservoirRuleSettings>(SettingsFactory::makeReservoirOptRule());
  EXPECT_EQ(optRule->getRule(), nullptr);
  auto curve = std::static_pointer_cast<ReservoirGuaranteeCurveSettings>(
      SettingsFactory::makeReservoirGuaranteeCurve());
  auto systemCurve = std::static_pointer_cast<ReservoirGuaranteeCurveSettings>(
      SettingsFactory::makeReservoirSystemGuaranteeCurve());
  EXPECT_FALSE(curve->getIsGuaranteeCurve());
  EXPECT_TRUE(systemCurve->getIsGuaranteeCurve());
}

TEST(SettingsManager, PriorityScenarioAndLinkGivePriorityLinkSettings) {
  SettingsManager manager;
  manager.make(7, Vocabulary::of(ScenarioType::priorityOptimizer),
               Vocabulary::of(ElementType::artificialLink));
  EXPECT_NE(std::dynamic_pointer_cast<PriorityLinkSettings>(manager.getSettings(7)), nullptr);
  manager.destroy(7);
  EXPECT_THROW_TEXT(manager.getSettings(7), std::invalid_argument,
                    "SettingsManager::getParameters(): invalid elementId");
}
