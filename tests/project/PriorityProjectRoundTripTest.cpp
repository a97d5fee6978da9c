#include <gtest/gtest.h>

#include <functional>
#include <typeinfo>

#include "core/Link.h"
#include "project/JsonProjectLoader.h"
#include "project/JsonSaveBuilder.h"
#include "project/PriorityProjectSupport.h"
#include "project/ProjectFileSupport.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"

using PriorityProjectRoundTrip = projectfile::ProjectFileTest;
using projectfile::everyHydrologicalStateType;

namespace {

using Values = std::vector<std::pair<unsigned int, double>>;
using Zones = PriorityReservoirSettings::Zones;

Values valuesOf(const Serie& serie) {
  return Values(serie.getMapOfJulianToValues().begin(), serie.getMapOfJulianToValues().end());
}

// How a goal series read back is held to the one written, whose element's default goal is given.
using SerieCheck = std::function<void(const Serie& written, const Serie& read, double goal)>;

// From the file alone a goal series comes back new: of the same kind, over the same period,
// asking for the default goal on each of its twelve months.
void expectDefaultGoal(const Serie& written, const Serie& read, double goal) {
  EXPECT_EQ(read.getType(), written.getType());
  EXPECT_EQ(read.getInterval(), written.getInterval());
  EXPECT_EQ(valuesOf(read).size(), 12u);
  for (const auto& [julian, value] : valuesOf(read)) EXPECT_EQ(value, goal) << julian;
}

// With the database beside the file the values written come back.
void expectSameValues(const Serie& written, const Serie& read, double) {
  EXPECT_EQ(read.getType(), written.getType());
  EXPECT_EQ(read.getInterval(), written.getInterval());
  EXPECT_EQ(valuesOf(read), valuesOf(written));
}

void expectSameZones(const Zones& written, const Zones& read, double goal,
                     const SerieCheck& check) {
  ASSERT_EQ(read.size(), written.size());
  for (std::size_t index = 0; index < written.size(); ++index) {
    SCOPED_TRACE(index);
    EXPECT_EQ(read[index].value, written[index].value);
    EXPECT_EQ(read[index].priority, written[index].priority);
    check(*written[index].serie, *read[index].serie, goal);
  }
}

void expectSameReservoirSettings(const PriorityReservoirSettings& written,
                                 const PriorityReservoirSettings& read, const SerieCheck& check) {
  const double goal = written.getDefaultSerieValue();
  EXPECT_EQ(read.getIsHydrologicalStateSystem(), written.getIsHydrologicalStateSystem());
  expectSameZones(written.getVectorOfHydrologicalZones(), read.getVectorOfHydrologicalZones(), goal,
                  check);
  ASSERT_EQ(read.initedVectorOfHydrologicalZonesMonthly(),
            written.initedVectorOfHydrologicalZonesMonthly());
  if (!written.initedVectorOfHydrologicalZonesMonthly()) return;
  for (unsigned int month = 0; month < 12; ++month) {
    SCOPED_TRACE("month " + std::to_string(month));
    expectSameZones(written.getVectorOfHydrologicalZonesMonthly(month),
                    read.getVectorOfHydrologicalZonesMonthly(month), goal, check);
  }
}

// Same class of settings; for reservoirs and demands the same priorities, the same number of
// states and zones, and goal series as check has them.
void expectSameSettings(const Settings& written, const Settings& read, const SerieCheck& check) {
  ASSERT_EQ(typeid(read), typeid(written));
  const auto* priorities = dynamic_cast<const PrioritySettings*>(&written);
  if (priorities == nullptr) return;
  const auto& loaded = dynamic_cast<const PrioritySettings&>(read);
  EXPECT_EQ(loaded.getPriority(), priorities->getPriority());
  const auto& pairs = priorities->getPrioritySeries();
  ASSERT_EQ(loaded.getPrioritySeries().size(), pairs.size());
  for (std::size_t state = 0; state < pairs.size(); ++state) {
    SCOPED_TRACE("state " + std::to_string(state));
    EXPECT_EQ(loaded.getPrioritySeries()[state].first, pairs[state].first);
    check(*pairs[state].second, *loaded.getPrioritySeries()[state].second,
          priorities->getDefaultSerieValue());
  }
  if (const auto* reservoir = dynamic_cast<const PriorityReservoirSettings*>(&written)) {
    expectSameReservoirSettings(*reservoir, dynamic_cast<const PriorityReservoirSettings&>(read),
                                check);
  }
}

void expectSameAddon(const LinkAddon& written, const LinkAddon& read) {
  ASSERT_EQ(typeid(read), typeid(written));
  EXPECT_EQ(read.getEnumType(), written.getEnumType());
  const auto* pumping = dynamic_cast<const LinkAddonPumping*>(&written);
  if (pumping == nullptr) return;
  const auto& loaded = dynamic_cast<const LinkAddonPumping&>(read);
  ASSERT_EQ(loaded.getPumpVector().size(), pumping->getPumpVector().size());
  for (std::size_t pump = 0; pump < pumping->getPumpVector().size(); ++pump) {
    const PumpingAddon& original = *pumping->getPumpVector()[pump];
    const PumpingAddon& copy = *loaded.getPumpVector()[pump];
    EXPECT_EQ(copy.flow, original.flow);
    ASSERT_EQ(copy.periods.size(), original.periods.size());
    for (std::size_t period = 0; period < original.periods.size(); ++period) {
      EXPECT_EQ(copy.periods[period]->initialValue, original.periods[period]->initialValue);
      EXPECT_EQ(copy.periods[period]->finalValue, original.periods[period]->finalValue);
    }
  }
  ASSERT_EQ(loaded.getFlowCostVector().size(), pumping->getFlowCostVector().size());
  for (std::size_t row = 0; row < pumping->getFlowCostVector().size(); ++row) {
    EXPECT_EQ(loaded.getFlowCostVector()[row]->flow, pumping->getFlowCostVector()[row]->flow);
    EXPECT_EQ(loaded.getFlowCostVector()[row]->costs, pumping->getFlowCostVector()[row]->costs);
  }
}

void expectSameScenario(const PriorityScenario& written, const Scenario& read,
                        const SerieCheck& check) {
  const auto* loaded = dynamic_cast<const PriorityScenario*>(&read);
  ASSERT_TRUE(loaded);
  const HydrologicalStateConfiguration& states = *written.getHydrologicalStateConfiguration();
  const HydrologicalStateConfiguration& copy = *loaded->getHydrologicalStateConfiguration();
  EXPECT_EQ(copy.getCurrentHydrologicalStateType(), states.getCurrentHydrologicalStateType());
  EXPECT_EQ(copy.getXValues(), states.getXValues());
  EXPECT_EQ(copy.getNumOfStatesMonthly(), states.getNumOfStatesMonthly());
  EXPECT_EQ(loaded->getPumpingCostsConfiguration(), written.getPumpingCostsConfiguration());
  ASSERT_EQ(loaded->getElements().size(), written.getElements().size());
  for (const auto& element : written.getElements()) {
    SCOPED_TRACE(element->getName());
    const auto& same = loaded->getElement(element->getId());
    EXPECT_EQ(same->getElementType(), element->getElementType());
    expectSameSettings(*written.getSettingsManager().getSettings(element->getId()),
                       *loaded->getSettingsManager().getSettings(element->getId()), check);
    if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
      expectSameAddon(*link->getLinkAddon(), *std::static_pointer_cast<Link>(same)->getLinkAddon());
    }
  }
}

std::vector<std::shared_ptr<Scenario>> asScenarios(
    const std::vector<std::shared_ptr<PriorityScenario>>& scenarios) {
  return std::vector<std::shared_ptr<Scenario>>(scenarios.begin(), scenarios.end());
}

// Closes the project database that a test opened, whatever its outcome.
struct OpenDatabase {
  ~OpenDatabase() { SQLStorage::deleteInstance(); }
};

}  // namespace

TEST_F(PriorityProjectRoundTrip, EveryElementKindAndStateTypeComesBackAsWritten) {
  const auto written = everyHydrologicalStateType();
  const std::string text = JsonSaveBuilder::toJson(asScenarios(written));
  const auto read = JsonProjectLoader::loadText(text);
  ASSERT_EQ(read.size(), written.size());
  EXPECT_EQ(JsonSaveBuilder::toJson(read), text);
  for (std::size_t index = 0; index < written.size(); ++index) {
    SCOPED_TRACE(written[index]->getName());
    expectSameScenario(*written[index], *read[index], expectDefaultGoal);
  }
}

// The file gives each reservoir and demand as many goal series as it has states and zones, and
// the database fills them: saved and opened as a whole, the project keeps every goal.
TEST_F(PriorityProjectRoundTrip, TheDatabaseFillsTheGoalSeriesThatTheFileShapes) {
  projectfile::TemporaryFolder folder;
  const std::string path = folder.file("prioridades.sjson");
  const auto written = everyHydrologicalStateType();
  auto& manager = ScenarioManager::getInstance();
  for (unsigned int index = 0; index < written.size(); ++index) {
    manager.addScenery(index, written[index]);
  }
  const auto always = [](long, long) { return true; };
  OpenDatabase database;
  ASSERT_TRUE(SaveProject::saveAs(path, always));
  manager.clear();
  const auto read = LoadProject::load(path, always);
  ASSERT_EQ(read.size(), written.size());
  for (std::size_t index = 0; index < written.size(); ++index) {
    SCOPED_TRACE(written[index]->getName());
    expectSameScenario(*written[index], *read[index], expectSameValues);
  }
}
