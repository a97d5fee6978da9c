#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/PriorityDemandSettings.h"
#include "core/PriorityReservoirSettings.h"
#include "core/RuleSettings.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

const Interval kYear(Date(2000, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly));

struct DefaultsCase {
  std::string name;
  std::shared_ptr<PrioritySettings> settings;
  unsigned int priority;
  double goal;
  SerieType goalType;
  std::string goalName;
};

}  // namespace

TEST(PrioritySettings, DefaultStatesFollowTheKindOfElement) {
  const DefaultsCase cases[] = {
      {"reservoir", std::make_shared<PriorityReservoirSettings>(), 99, 1.0, SerieType::targetVolume,
       "Volume meta"},
      {"demand", std::make_shared<PriorityDemandSettings>(), 1, 0.0, SerieType::demand,
       "Demanda de estados hidrológico"},
      {"drain", std::make_shared<PriorityDrainDemandSettings>(), 99, 99999.0, SerieType::demand,
       "Demanda de estados hidrológico"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    c.settings->addDefaultPairOfPrioritySerie(kYear);
    const auto& [priority, serie] = c.settings->getPrioritySeries().at(0);
    EXPECT_EQ(priority, c.priority);
    EXPECT_EQ(serie->getType(), c.goalType);
    EXPECT_EQ(serie->getName(), c.goalName);
    EXPECT_EQ(serie->size(), 12u);
    EXPECT_EQ(serie->getValue(Date(2000, 7, 1)), c.goal);
  }
}

TEST(PrioritySettings, StatesAreEditedOneByOneOrAllTogether) {
  PriorityDemandSettings settings;
  EXPECT_FALSE(settings.popBackPairOfPrioritySerie());
  for (int state = 0; state < 3; ++state) settings.addDefaultPairOfPrioritySerie(kYear);
  settings.setPriorityOfPairPrioritySerie(7, 2);
  EXPECT_EQ(settings.getPrioritySeries()[2].first, 7u);
  EXPECT_THROW_TEXT(settings.setPriorityOfPairPrioritySerie(7, 3), std::out_of_range,
                    "PrioritySettings::setPriorityOfPairPrioritySerie() invalid index");

  settings.setPriority(4);
  settings.copyPriority();
  for (const auto& pair : settings.getPrioritySeries()) EXPECT_EQ(pair.first, 4u);
  settings.setAllPriorities(9);
  for (const auto& pair : settings.getPrioritySeries()) EXPECT_EQ(pair.first, 9u);

  auto values = std::make_shared<Serie>(kYear, Vocabulary::of(SerieType::demand),
                                        Vocabulary::of(Unit::cubicMetresPerSecond));
  values->setValue(Date(2000, 3, 1), 2.5);
  settings.setValueHydrologicalStateSerie(values);
  for (const auto& pair : settings.getPrioritySeries()) {
    EXPECT_EQ(pair.second->getValue(Date(2000, 3, 1)), 2.5);
    EXPECT_EQ(pair.second->getValue(Date(2000, 4, 1)), 0.0);
  }
  EXPECT_THROW_TEXT(settings.setValueHydrologicalStateSerie(nullptr), std::invalid_argument,
                    "PrioritySettings::setValueHydrologicalStateSerie(): null serie");
  settings.setDefaultValueHydrologicalStateSerie();
  EXPECT_EQ(settings.getPrioritySeries()[1].second->getValue(Date(2000, 3, 1)), 0.0);

  EXPECT_TRUE(settings.popBackPairOfPrioritySerie());
  EXPECT_EQ(settings.getPrioritySeries().size(), 2u);
  settings.clearPrioritySeries();
  EXPECT_TRUE(settings.getPrioritySeries().empty());
}

TEST(PrioritySettings, CopiesOwnTheirSeries) {
  PriorityReservoirSettings settings;
  settings.setPriority(12);
  settings.setIsHydrologicalStateSystem(true);
  settings.addDefaultPairOfPrioritySerie(kYear);
  auto copy = std::static_pointer_cast<PriorityReservoirSettings>(settings.copy());
  EXPECT_EQ(copy->getPriority(), 12u);
  EXPECT_TRUE(copy->getIsHydrologicalStateSystem());
  const auto& original = settings.getPrioritySeries().at(0).second;
  const auto& copied = copy->getPrioritySeries().at(0).second;
  EXPECT_NE(copied, original);
  original->setValue(Date(2000, 1, 1), 0.3);
  EXPECT_EQ(copied->getValue(Date(2000, 1, 1)), 1.0);
}

TEST(PrioritySettings, CopyFromAnotherKindIsRefused) {
  PriorityReservoirSettings reservoir;
  PriorityDemandSettings demand;
  EXPECT_THROW_TEXT(demand.copyFrom(std::make_shared<JunctionRuleSettings>()),
                    std::invalid_argument, "PrioritySettings::copyFrom: invalid PrioritySettings");
  EXPECT_THROW_TEXT(reservoir.copyFrom(std::make_shared<PriorityDemandSettings>()),
                    std::invalid_argument, "PrioritySettings::copyFrom: invalid PrioritySettings");
}
