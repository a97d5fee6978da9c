#include <gtest/gtest.h>

#include <typeinfo>

#include "core/Demand.h"
#include "core/ExecutionMethod.h"
#include "core/Link.h"
#include "core/LinkAddonPumping.h"
#include "core/PriorityDemandSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "core/PriorityReservoirSettings.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/ProjectFileSupport.h"
#include "scenario/PriorityScenario.h"
#include "vocabulary/Vocabulary.h"

using projectfile::ProjectFileTest;

namespace {

// The project of tests/data/project/prioridades.sjson, written by hand from the format's tables:
// the priority scenario "Açudes" over the first half of 2001, with monthly zones per reservoir.
// A reservoir with zones and monthly zones, a junction, a basin, a town and an outlet, joined by
// a reach with propagation, a plain reach, a pumping canal and a sewer.
class GoldenPriorityProject : public ProjectFileTest {
 protected:
  void SetUp() override {
    ProjectFileTest::SetUp();
    scenarios = JsonProjectLoader::load(projectfile::priorityGoldenPath());
    ASSERT_EQ(scenarios.size(), 1u);
    acudes = std::dynamic_pointer_cast<PriorityScenario>(scenarios[0]);
    ASSERT_TRUE(acudes);
  }

  template <typename T>
  std::shared_ptr<T> settings(unsigned int id) const {
    return Scenario::getSettings<T>(acudes->getElement(id), acudes->getSettingsManager());
  }
  std::shared_ptr<LinkAddon> addon(unsigned int id) const {
    return std::static_pointer_cast<Link>(acudes->getElement(id))->getLinkAddon();
  }

  // The series is new over the scenario's six months and asks for goal on each: the goal series
  // themselves are the database's.
  void expectNewGoalSerie(const Serie& serie, SerieType type, double goal) const {
    EXPECT_EQ(serie.getType(), type);
    EXPECT_EQ(serie.getInterval(), acudes->getInterval());
    EXPECT_EQ(serie.getMapOfJulianToValues().size(), 6u);
    for (const auto& [julian, value] : serie.getMapOfJulianToValues()) EXPECT_EQ(value, goal);
  }

  std::vector<unsigned int> prioritiesOf(const PrioritySettings& settings) const {
    std::vector<unsigned int> priorities;
    for (const auto& [priority, serie] : settings.getPrioritySeries())
      priorities.push_back(priority);
    return priorities;
  }

  std::vector<std::shared_ptr<Scenario>> scenarios;
  std::shared_ptr<PriorityScenario> acudes;
};

}  // namespace

TEST_F(GoldenPriorityProject, ScenarioAndHydrologicalStates) {
  EXPECT_EQ(acudes->getName(), "Açudes");
  EXPECT_EQ(acudes->getId(), 4u);
  EXPECT_EQ(acudes->getDatabaseId(), 9u);
  EXPECT_EQ(acudes->getInterval(),
            Interval(Date(2001, 1, 1), Date(2001, 6, 1), Vocabulary::of(Periodicity::monthly)));
  EXPECT_EQ(acudes->getExecutionMethod()->getExecutionType().getType(), ExecutionType::continuous);
  const HydrologicalStateConfiguration& states = *acudes->getHydrologicalStateConfiguration();
  EXPECT_EQ(states.getCurrentHydrologicalStateType(),
            Vocabulary::of(HydrologicalStateType::perReservoirMonthly));
  EXPECT_EQ(states.getXValues(), std::vector<double>{0.5});
  EXPECT_EQ(states.getNumOfStates(), 2u);
  EXPECT_EQ(states.getNumOfStatesMonthly(), 1u);
  EXPECT_EQ(acudes->getPumpingCostsConfiguration(), (std::vector<double>{2.0, 0.0, 0.5, -999.0}));
  EXPECT_EQ(acudes->getLabelElementsSelects(),
            (std::map<std::string, std::vector<int>>{{"Bombas", {7}}}));
  EXPECT_EQ(acudes->getElements().size(), 9u);
  EXPECT_EQ(ScenarioManager::getInstance().getNextScenarioId(), 5u);
}

TEST_F(GoldenPriorityProject, ReservoirWithStatesZonesAndMonthlyZones) {
  const auto serra = settings<PriorityReservoirSettings>(0);
  EXPECT_EQ(serra->getPriority(), 5u);
  EXPECT_TRUE(serra->getIsHydrologicalStateSystem());
  EXPECT_EQ(prioritiesOf(*serra), (std::vector<unsigned int>{2, 40}));
  for (const auto& [priority, serie] : serra->getPrioritySeries()) {
    expectNewGoalSerie(*serie, SerieType::targetVolume, 1.0);
  }
  const auto& zones = serra->getVectorOfHydrologicalZones();
  ASSERT_EQ(zones.size(), 2u);
  EXPECT_EQ(std::make_pair(zones[0].value, zones[0].priority), std::make_pair(0.25, 3u));
  EXPECT_EQ(std::make_pair(zones[1].value, zones[1].priority), std::make_pair(0.75, 30u));
  for (const auto& zone : zones) expectNewGoalSerie(*zone.serie, SerieType::targetVolume, 1.0);
  ASSERT_TRUE(serra->initedVectorOfHydrologicalZonesMonthly());
  for (unsigned int month = 0; month < 12; ++month) {
    SCOPED_TRACE(month);
    const auto& monthly = serra->getVectorOfHydrologicalZonesMonthly(month);
    ASSERT_EQ(monthly.size(), 1u);
    EXPECT_EQ(monthly[0].value, 0.5);
    EXPECT_EQ(monthly[0].priority, month + 1);
    expectNewGoalSerie(*monthly[0].serie, SerieType::targetVolume, 1.0);
  }
}

TEST_F(GoldenPriorityProject, DemandsDrainAndPassiveElements) {
  const auto town = settings<PriorityDemandSettings>(3);
  EXPECT_EQ(typeid(*town), typeid(PriorityDemandSettings));
  EXPECT_EQ(town->getPriority(), 1u);
  EXPECT_EQ(prioritiesOf(*town), (std::vector<unsigned int>{1, 7}));
  for (const auto& [priority, serie] : town->getPrioritySeries()) {
    EXPECT_EQ(serie->getName(), "Demanda de estados hidrológico");
    expectNewGoalSerie(*serie, serie->getType(), 0.0);
  }
  EXPECT_EQ(std::static_pointer_cast<Demand>(acudes->getElement(3))->getDemandReturnPercentages(),
            std::vector<double>{30.0});

  const auto outlet = settings<PriorityDrainDemandSettings>(4);
  EXPECT_EQ(outlet->getPriority(), 99u);
  EXPECT_EQ(prioritiesOf(*outlet), (std::vector<unsigned int>{99, 99}));
  for (const auto& [priority, serie] : outlet->getPrioritySeries()) {
    expectNewGoalSerie(*serie, serie->getType(), 99999.0);
  }

  EXPECT_TRUE(settings<PriorityJunctionSettings>(1));
  EXPECT_TRUE(settings<PriorityBasinSettings>(2));
  for (unsigned int link = 5; link <= 8; ++link) EXPECT_TRUE(settings<PriorityLinkSettings>(link));
}

TEST_F(GoldenPriorityProject, LinkAddons) {
  EXPECT_TRUE(std::dynamic_pointer_cast<LinkAddonPropagation>(addon(5)));
  EXPECT_EQ(addon(5)->getType(), LinkAddonType::propagation);
  EXPECT_EQ(addon(6)->getType(), LinkAddonType::none);
  EXPECT_EQ(addon(8)->getType(), LinkAddonType::none);

  const auto pumping = std::dynamic_pointer_cast<LinkAddonPumping>(addon(7));
  ASSERT_TRUE(pumping);
  const auto& pumps = pumping->getPumpVector();
  ASSERT_EQ(pumps.size(), 2u);
  using Spans = std::vector<std::pair<unsigned int, unsigned int>>;
  const auto spans = [](const PumpingAddon& pump) {
    Spans result;
    for (const auto& period : pump.periods)
      result.emplace_back(period->initialValue, period->finalValue);
    return result;
  };
  EXPECT_EQ(pumps[0]->flow, 2.0);
  EXPECT_EQ(spans(*pumps[0]), (Spans{{0, 720}, {720, 1440}}));
  EXPECT_EQ(pumps[1]->flow, 1.25);
  EXPECT_EQ(spans(*pumps[1]), (Spans{{360, 1080}}));

  const auto& rows = pumping->getFlowCostVector();
  ASSERT_EQ(rows.size(), 3u);
  for (unsigned int row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(rows[row]->flow, 2.0 * row);
    for (unsigned int month = 0; month < 12; ++month) {
      EXPECT_EQ(rows[row]->costs[month], 2.0 * row * (10 + month)) << row << " " << month;
    }
  }
  // The December column, 0, 42 and 84 at 0, 2 and 4 m³/s, lies on one line of slope 21: the
  // table read serves the cost of 3 m³/s as 63.
  pumping->regressionCalculation();
  EXPECT_NEAR(pumping->getRegressionFlowCost(3.0, 12), 63.0, 1e-9);
}

TEST_F(GoldenPriorityProject, WrittenBackByteForByte) {
  EXPECT_EQ(JsonSaveBuilder::toJson(scenarios),
            projectfile::readFile(projectfile::priorityGoldenPath()));
}
