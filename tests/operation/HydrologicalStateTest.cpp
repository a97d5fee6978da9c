#include <gtest/gtest.h>

#include <functional>

#include "PriorityNetworkBuilder.h"
#include "core/ElementsFilter.h"
#include "operation/PriorityCalculator.h"
#include "operation/ReservoirHydrologicalStateCalculator.h"
#include "support/ExpectThrow.h"

namespace {

const Date kJan(2001, 1, 1);
const Date kFeb(2001, 2, 1);
const Date kMar(2001, 3, 1);

// A reservoir of 100 hm³ holding 80 that feeds a demand of 30 hm³ a month: it holds 80, 50 and 20
// at the start of January, February and March while the demand is served.
struct StateNetwork {
  explicit StateNetwork(HydrologicalStateType type) {
    config()->setCurrentHydrologicalStateType(Vocabulary::of(type));
    reservoir = net.reservoir(0, 100, 80, 99);
    demand = net.demand(30, 10);
    link = net.link(reservoir, demand);
  }
  std::shared_ptr<HydrologicalStateConfiguration> config() const {
    return net.scenario->getHydrologicalStateConfiguration();
  }
  std::shared_ptr<PriorityReservoirSettings> zones() const {
    return net.settings<PriorityReservoirSettings>(reservoir);
  }
  // The serie of a goal that is value on every date.
  std::shared_ptr<Serie> goal(const std::shared_ptr<Element>& element, double value) const {
    auto serie = net.settings(element)->getHydrologicalStateSerie(net.interval());
    serie->fill(value);
    return serie;
  }
  std::vector<double> priorities(const std::shared_ptr<Element>& element) const {
    return {net.output(element, SerieType::priority, kJan),
            net.output(element, SerieType::priority, kFeb),
            net.output(element, SerieType::priority, kMar)};
  }
  std::vector<double> taken() const {
    return {net.taken(link, kJan), net.taken(link, kFeb), net.taken(link, kMar)};
  }

  PriorityNetworkBuilder net;
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Demand> demand;
  std::shared_ptr<Link> link;
};

void expectNear(const std::vector<double>& actual, const std::vector<double>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], 1e-9) << i;
}

}  // namespace

// New shares are tested only at the next call: the bad 0.7 + 0.6 is stored, then refused.
TEST(HydrologicalStateConfiguration, SharesAreTestedAtTheNextCall) {
  HydrologicalStateConfiguration config;
  config.setXValues({0.7, 0.6});
  EXPECT_FALSE(config.isXValuesValid());
  EXPECT_THROW_TEXT(
      config.setXValues({0.5}), std::invalid_argument,
      "HydrologicalStateConfiguration::setXValues(): Sum of xValues greater than 1.0");
  EXPECT_EQ(config.getXValues(), (std::vector<double>{0.7, 0.6}));
  config.setXValueByIndex(1, 0.3);
  config.setXValues({0.5});
  EXPECT_EQ(config.getXValues(), std::vector<double>{0.5});
  EXPECT_THROW_TEXT(config.setXValueByIndex(1, 0.1), std::out_of_range,
                    "PriorityScenario::setHydrologicalStateXValue: invalid index");
}

TEST(HydrologicalStateConfiguration, NumberOfStatesGivesEveryElementItsPairs) {
  StateNetwork network(HydrologicalStateType::standard);
  auto config = network.config();
  for (unsigned int states : {4u, 1u, 3u}) {
    config->setNumOfStates(states, network.net.scenario);
    EXPECT_EQ(config->getXValues().size(), states - 1);
    EXPECT_EQ(network.net.settings(network.reservoir)->getPrioritySeries().size(), states);
    EXPECT_EQ(network.net.settings(network.demand)->getPrioritySeries().size(), states);
  }
  EXPECT_THROW_TEXT(config->setNumOfStates(0, network.net.scenario), std::invalid_argument,
                    "HydrologicalStateConfiguration::setNumOfStates(): at least one state");
}

// Shares 0.3 and 0.5 of 100 hm³ make the zones [0, 30] and [30, 80]; a volume on a boundary is
// in the zone below, one above 80 in the state past the last zone.
TEST(HydrologicalStateCalculator, SystemVolumeOnABoundaryBelongsBelow) {
  StateNetwork network(HydrologicalStateType::standard);
  network.config()->setXValues({0.3, 0.5});
  network.zones()->setIsHydrologicalStateSystem(true);
  HydrologicalStateCalculator calculator(
      network.config(), network.net.scenario->getSettingsManager(), {network.reservoir}, false);
  EXPECT_EQ(calculator.getVolMaxReservoirs(), 100.0);
  EXPECT_NEAR(calculator.getZones()[1].upper, 80.0, 1e-12);
  for (const auto& [volume, index] :
       {std::pair{0.0, 0u}, std::pair{30.0, 0u}, std::pair{30.0 + 5e-7, 0u}, std::pair{30.01, 1u},
        std::pair{80.0, 1u}, std::pair{95.0, 2u}}) {
    calculator.calcHydrologicIndex(volume);
    EXPECT_EQ(calculator.getHydrologicIndex(), index) << volume;
  }
  network.zones()->setIsHydrologicalStateSystem(false);
  HydrologicalStateCalculator unmarked(network.config(), network.net.scenario->getSettingsManager(),
                                       {network.reservoir}, false);
  unmarked.updateHydrologicStateValue(kJan, network.net.interval(), 0);
  EXPECT_EQ(unmarked.getVolMaxReservoirs(), 0.0);
  EXPECT_EQ(unmarked.getHydrologicIndex(), 0u);
}

// Two states split at half of the capacity. January (80 hm³) is in the wet state: the demand
// comes first (priority 1) and takes 30 while the reservoir aims at 20 %. February starts at 50,
// on the boundary, so in the dry state: the reservoir (priority 2) keeps everything and the
// demand (priority 5, 10 hm³) gets nothing.
TEST(HydrologicalStateCalculator, StandardStatesChangeGoalsFromDateToDate) {
  StateNetwork network(HydrologicalStateType::standard);
  network.config()->setXValues({0.5});
  network.zones()->setIsHydrologicalStateSystem(true);
  auto reservoirStates = network.net.settings(network.reservoir);
  auto demandStates = network.net.settings(network.demand);
  reservoirStates->clearPrioritySeries();
  reservoirStates->addPairOfPrioritySerie({2, network.goal(network.reservoir, 1.0)});
  reservoirStates->addPairOfPrioritySerie({50, network.goal(network.reservoir, 0.2)});
  demandStates->clearPrioritySeries();
  demandStates->addPairOfPrioritySerie(
      {5, network.goal(network.demand, network.net.m3s(kFeb, 10))});
  demandStates->addPairOfPrioritySerie(
      {1, network.goal(network.demand, network.net.m3s(kJan, 30))});
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  expectNear(network.taken(), {30, 0, 0});
  expectNear(network.priorities(network.demand), {1, 5, 5});
  expectNear(network.priorities(network.reservoir), {50, 2, 2});
  EXPECT_EQ(network.net.output(network.reservoir, SerieType::targetVolume, kJan), 0.2);
  EXPECT_EQ(network.net.output(network.reservoir, SerieType::targetVolume, kFeb), 1.0);
  EXPECT_NEAR(network.net.output(network.demand, SerieType::targetDemand, kFeb),
              network.net.m3s(kFeb, 10), 1e-12);
}

// Zones of half the capacity each: the reservoir is in the upper zone (priority 60, below the
// demand's 10) at 80 and, on the boundary, at 50; at 20 it is in the lower zone (priority 3,
// aiming at a full reservoir) and keeps its water.
TEST(HydrologicalStateCalculator, ReservoirZonesPutABoundaryInTheZoneAbove) {
  StateNetwork network(HydrologicalStateType::perReservoir);
  auto settings = network.zones();
  settings->addHydrologicalZone({0.5, 3, network.goal(network.reservoir, 1.0)});
  settings->addHydrologicalZone({0.5, 60, network.goal(network.reservoir, 0.0)});
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  expectNear(network.taken(), {30, 30, 0});
  expectNear(network.priorities(network.reservoir), {60, 60, 3});
  expectNear(network.priorities(network.demand), {10, 10, 10});
  EXPECT_EQ(network.net.output(network.reservoir, SerieType::targetVolume, kMar), 1.0);
}

// The same storage falls in zones of different priorities in different months.
TEST(HydrologicalStateCalculator, MonthlyZonesFollowTheMonth) {
  StateNetwork network(HydrologicalStateType::perReservoirMonthly);
  auto settings = network.zones();
  settings->initHydrologicalZoneMonthly(2, network.net.interval());
  const std::vector<std::pair<double, std::vector<unsigned int>>> months = {
      {0.5, {3, 60}}, {0.9, {70, 4}}, {0.1, {5, 80}}};
  for (unsigned int month = 0; month < 3; ++month) {
    settings->setValueOfHydrologicalZoneMonthly(months[month].first, 0, month);
    settings->setValueOfHydrologicalZoneMonthly(1.0 - months[month].first, 1, month);
    for (unsigned int zone = 0; zone < 2; ++zone) {
      settings->setPriorityOfHydrologicalZoneMonthly(months[month].second[zone], zone, month);
    }
    settings->setValueHydrologicalStateSeriePerReservoirMonthly(
        network.goal(network.reservoir, 0.0), month);
  }
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  expectNear(network.priorities(network.reservoir), {60, 70, 80});
  const auto tops =
      ReservoirHydrologicalStateCalculator::getVolumesHydrologicalStatePerReservoirMonthly(
          network.reservoir, settings);
  ASSERT_EQ(tops.size(), 12u);
  expectNear(tops[1], {90, 100});
}

TEST(ReservoirHydrologicalStateCalculator, TypeOutsideTheTablesIsRefused) {
  StateNetwork network(HydrologicalStateType::none);
  network.config()->setCurrentHydrologicalStateType({static_cast<HydrologicalStateType>(7), "?"});
  auto calculator = std::make_shared<HydrologicalStateCalculator>(
      network.config(), network.net.scenario->getSettingsManager(),
      Scenario::Elements{network.reservoir}, false);
  auto settings = network.net.settings(network.reservoir);
  const Interval& interval = network.net.interval();
  using Calc = ReservoirHydrologicalStateCalculator;
  const std::vector<std::pair<std::string, std::function<void()>>> calls = {
      {"getElementPriority",
       [&] {
         Calc::getElementPriority(network.reservoir, settings, calculator, interval, kJan, 0);
       }},
      {"getTargetVolume",
       [&] { Calc::getTargetVolume(network.reservoir, settings, calculator, interval, kJan, 0); }},
      {"getWaterDemand", [&] { Calc::getWaterDemand(network.demand, settings, calculator); }},
  };
  for (const auto& [method, call] : calls) {
    EXPECT_THROW_TEXT(
        call(), std::invalid_argument,
        "ReservoirHydrologicalStateCalculator::" + method + "(): invalid hydrological state type");
  }
  EXPECT_EQ(
      PriorityCalculator::getPriority(network.demand, network.net.settings(network.demand),
                                      calculator, ElementType::genericDemand, interval, kJan, 0),
      10u);
}

TEST(PriorityReservoirSettings, ZoneEditsAreCheckedWithTheirTexts) {
  const Interval year(Date(2001, 1, 1), Date(2001, 12, 1), Vocabulary::of(Periodicity::monthly));
  PriorityReservoirSettings settings;
  settings.addDefaultHydrologicalZone(year);
  settings.addDefaultHydrologicalZone(year);
  settings.initHydrologicalZoneMonthly(2, year);
  settings.setValueOfHydrologicalZone(0.6, 0);
  settings.setValueOfHydrologicalZoneMonthly(0.6, 0, 11);

  const std::string prefix = "PriorityReservoirSettings::";
  const std::vector<std::tuple<std::function<void()>, bool, std::string>> cases = {
      {[&] { settings.setPriorityOfHydrologicalZone(5, 2); }, true,
       "setPriorityOfHydrologicalZone(): invalid index"},
      {[&] { settings.setPriorityOfHydrologicalZone(100, 1); }, false,
       "setPriorityOfHydrologicalZone(): priority > 99"},
      {[&] { settings.setPriorityOfHydrologicalZoneMonthly(5, 2, 0); }, true,
       "setPriorityOfHydrologicalZoneMonthly(): invalid index"},
      {[&] { settings.setPriorityOfHydrologicalZoneMonthly(5, 0, 12); }, true,
       "setPriorityOfHydrologicalZoneMonthly(): invalid index"},
      {[&] { settings.setPriorityOfHydrologicalZoneMonthly(100, 0, 0); }, false,
       "setPriorityOfHydrologicalZoneMonthly(): priority > 99"},
      {[&] { settings.setValueOfHydrologicalZone(0.1, 2); }, true,
       "setValueOfHydrologicalZone(): invalid index"},
      {[&] { settings.setValueOfHydrologicalZone(0.5, 1); }, false,
       "setValueOfHydrologicalZone(): sum of values > 1.0"},
      {[&] { settings.setValueOfHydrologicalZoneMonthly(0.1, 2, 0); }, true,
       "setValueOfHydrologicalZoneMonthly(): invalid index"},
      {[&] { settings.setValueOfHydrologicalZoneMonthly(0.5, 1, 11); }, false,
       "setValueOfHydrologicalZoneMonthly(): sum of values > 1.0"},
      {[&] { settings.getVectorOfHydrologicalZonesMonthly(12); }, true,
       "getVectorOfHydrologicalZonesMonthly(): invalid index"},
  };
  for (const auto& [call, outOfRange, text] : cases) {
    if (outOfRange) {
      EXPECT_THROW_TEXT(call(), std::out_of_range, prefix + text);
    } else {
      EXPECT_THROW_TEXT(call(), std::invalid_argument, prefix + text);
    }
  }
  // A refused share leaves the old one; a share within 1e-06 of the total passes.
  EXPECT_EQ(settings.getVectorOfHydrologicalZones()[1].value, 0.0);
  settings.setValueOfHydrologicalZone(0.4 + 5e-7, 1);
  EXPECT_EQ(settings.getVectorOfHydrologicalZonesMonthly(11)[1].value, 0.0);
}
