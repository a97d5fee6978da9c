#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>

#include "core/ElementSets.h"
#include "core/PriorityPassiveSettings.h"
#include "core/ReservoirGuaranteeCurveSettings.h"
#include "core/SettingsFactory.h"
#include "core/SettingsManager.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const std::type_info& classOf(const std::shared_ptr<Settings>& settings) {
  const Settings& object = *settings;
  return typeid(object);
}

}  // namespace

// A copy is of the class of what it copies: a scenario copied for a run keeps each element's
// settings whole.
TEST(SettingsFactory, EveryScenarioAndElementTypeMakesSettingsThatCopyWhole) {
  for (const auto& scenario : Vocabulary::scenarioTypes().getRows()) {
    for (ElementType element : ElementSets::allElements()) {
      SCOPED_TRACE(scenario.getName() + " / " + Vocabulary::of(element).getName());
      const std::shared_ptr<Settings> settings =
          SettingsFactory::make({scenario.getType(), element});
      ASSERT_NE(settings, nullptr);
      EXPECT_EQ(classOf(settings->copy()), classOf(settings));
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

// The two guarantee curves differ only in the mark their reservoirs are made with.
TEST(SettingsFactory, OnlyTheSystemCurveMarksItsReservoirs) {
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
}
