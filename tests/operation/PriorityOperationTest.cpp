#include <gtest/gtest.h>

#include "PriorityNetworkBuilder.h"
#include "core/ElementSets.h"
#include "operation/PriorityOperation.h"
#include "operation/ReservoirPriorityResultsWriter.h"
#include "operation/ResultsWriterFactory.h"
#include "support/ExpectThrow.h"

namespace {

const Date kJan(2001, 1, 1);
const Date kFeb(2001, 2, 1);

std::shared_ptr<PriorityOperation> operationOf(const PriorityScenario& scenario) {
  return std::static_pointer_cast<PriorityOperation>(scenario.getCurrentOperationSystem());
}

}  // namespace

// 50 hm³ above the minimum: D1 (priority 1) takes its 30, D2 (priority 2) the remaining 20 of its
// 40. In February the reservoir starts at its minimum and neither gets anything.
TEST(PriorityOperation, HigherPriorityDemandIsServedFirstInADryPeriod) {
  PriorityNetworkBuilder net;
  auto reservoir = net.reservoir(10, 200, 60, 99);
  auto junction = net.node(ElementType::junction);
  auto d1 = net.demand(30, 1);
  auto d2 = net.demand(40, 2, ElementType::irrigationDemand);
  net.link(reservoir, junction);
  auto toD1 = net.link(junction, d1, 0.0, 9999.0, ElementType::artificialLink);
  auto toD2 = net.link(junction, d2, 0.0, 9999.0, ElementType::artificialLink);
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_NEAR(net.taken(toD1, kJan), 30.0, 1e-9);
  EXPECT_NEAR(net.taken(toD2, kJan), 20.0, 1e-9);
  EXPECT_NEAR(net.output(d2, SerieType::supplyShortageVolume, kJan), 20.0, 1e-9);
  EXPECT_NEAR(net.output(reservoir, SerieType::finalVolume, kJan), 10.0, 1e-9);
  EXPECT_EQ(net.taken(toD1, kFeb) + net.taken(toD2, kFeb), 0.0);
  EXPECT_EQ(
      operationOf(*net.scenario)->getNetworkFlow()->makePriorities(net.scenario->getElements()),
      (std::vector<unsigned int>{1, 2, 99}));
}

// 20 hm³ stored and 10 of inflow under a minimum of 50: the reservoir releases nothing.
TEST(PriorityOperation, ReservoirBelowItsMinimumStaysSolvable) {
  PriorityNetworkBuilder net;
  auto reservoir = net.reservoir(50, 200, 20, 99);
  reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(kJan, net.m3s(kJan, 10));
  auto demand = net.demand(5, 1);
  auto link = net.link(reservoir, demand);
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_EQ(net.taken(link, kJan), 0.0);
  EXPECT_NEAR(net.output(reservoir, SerieType::finalVolume, kJan), 30.0, 1e-9);
}

// D1 takes 40 and returns half through its link to D2, which needs 15: the link carries 15 and
// the return slack keeps the other 5. D2 returns nothing to the drain below it.
TEST(PriorityOperation, DemandReturnServesALaterDemand) {
  PriorityNetworkBuilder net;
  auto reservoir = net.reservoir(0, 200, 40, 99);
  auto d1 = net.demand(40, 1);
  auto d2 = net.demand(15, 2);
  net.link(reservoir, d1);
  auto back = net.link(d1, d2);
  d1->setDemandReturnPercentage(back, 50.0);
  net.link(d2, net.node(ElementType::drain));
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_NEAR(net.taken(back, kJan), 15.0, 1e-9);
  EXPECT_NEAR(net.output(d2, SerieType::attendedDemandVolume, kJan), 15.0, 1e-9);
}

// Two demands of priority 1 share one pass: together they take the 40 hm³ there are.
TEST(PriorityOperation, EqualPrioritiesShareOnePass) {
  PriorityNetworkBuilder net(1);
  auto reservoir = net.reservoir(0, 200, 40, 99);
  auto junction = net.node(ElementType::junction);
  net.link(reservoir, junction);
  auto toD1 = net.link(junction, net.demand(30, 1));
  auto toD2 = net.link(junction, net.demand(30, 1));
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_NEAR(net.taken(toD1, kJan) + net.taken(toD2, kJan), 40.0, 1e-9);
  EXPECT_LE(net.taken(toD1, kJan), 30.0 + 1e-9);
  EXPECT_LE(net.taken(toD2, kJan), 30.0 + 1e-9);
  EXPECT_EQ(
      operationOf(*net.scenario)->getNetworkFlow()->makePriorities(net.scenario->getElements()),
      (std::vector<unsigned int>{1, 99}));
}

// Limits bind links leaving reservoirs and junctions; a demand's return link is not limited.
TEST(PriorityOperation, LinkLimitsBindReservoirAndJunctionLinksOnly) {
  for (ElementType source :
       {ElementType::reservoir, ElementType::junction, ElementType::humanDemand}) {
    SCOPED_TRACE(Vocabulary::of(source).getName());
    PriorityNetworkBuilder net(1);
    std::shared_ptr<Node> from = net.reservoir(0, 200, 100, 99);
    if (source != ElementType::reservoir) {
      auto middle = source == ElementType::junction ? net.node(source) : net.demand(100, 1);
      net.link(from, middle);
      from = middle;
    }
    auto end = net.demand(50, 2);
    net.link(end, net.node(ElementType::drain));
    auto limited = net.link(from, end, 0.0, 5.0);
    if (auto demand = std::dynamic_pointer_cast<Demand>(from)) {
      demand->setDemandReturnPercentage(limited, 100.0);
    }
    ASSERT_TRUE(net.scenario->run(nullptr));
    const double expected = source == ElementType::humanDemand ? net.m3s(kJan, 50) : 5.0;
    EXPECT_NEAR(limited->getOutputSerie(SerieType::inflow, 0)->getValue(kJan), expected, 1e-9);
  }
}

// Above its empty goal the reservoir holds 50 hm³: a drain of priority 99 takes them all, one of
// priority 100 weighs nothing and takes none.
TEST(PriorityOperation, DrainTakesTheSurplusOnlyWithAWeight) {
  for (const auto& [priority, expected] : {std::pair{99u, 50.0}, std::pair{100u, 0.0}}) {
    SCOPED_TRACE(priority);
    PriorityNetworkBuilder net(1);
    auto reservoir = net.reservoir(10, 200, 60, 50);
    auto drain = net.node(ElementType::drain);
    net.settings(drain)->setPriority(priority);
    auto link = net.link(reservoir, drain);
    ASSERT_TRUE(net.scenario->run(nullptr));
    EXPECT_NEAR(net.taken(link, kJan), expected, 1e-9);
    EXPECT_NEAR(net.output(reservoir, SerieType::finalVolume, kJan), 60.0 - expected, 1e-9);
    EXPECT_EQ(operationOf(*net.scenario)->spill(link), 0.0);
  }
}

// A negative demand cannot be met by any flow. The checks refuse one before the run, so here it
// appears while the run is under way, once January is done: the run stops in February, drops
// its results and gives the network back as stored.
TEST(PriorityOperation, InfeasibleDateIsReportedWithoutResults) {
  PriorityNetworkBuilder net;
  auto reservoir = net.reservoir(0, 200, 100, 99);
  auto demand = net.demand(10, 1);
  net.link(reservoir, demand);
  const auto breakFebruary = [&](long, long) {
    demand->getInputSerie(SerieType::demand)->setValue(kFeb, -5.0);
    return true;
  };
  EXPECT_FALSE(net.scenario->run(breakFebruary));
  ASSERT_TRUE(net.scenario->getInfeasibleDate().has_value());
  EXPECT_EQ(*net.scenario->getInfeasibleDate(), kFeb);
  EXPECT_EQ(net.scenario->getSceneryStatus().getType(), SceneryStatus::configurationError);
  EXPECT_FALSE(reservoir->hasResults());

  demand->getInputSerie(SerieType::demand)->setValue(kFeb, 0.0);
  EXPECT_TRUE(net.scenario->run(nullptr));
  EXPECT_FALSE(net.scenario->getInfeasibleDate().has_value());
}

// Without reservoirs or demands there is nothing to solve: links carry nothing.
TEST(PriorityOperation, NetworkWithoutPriorityElementsRunsWithoutModel) {
  PriorityNetworkBuilder net(1);
  auto basin = net.node(ElementType::basin);
  auto link = net.link(basin, net.node(ElementType::junction));
  ASSERT_TRUE(net.scenario->run(nullptr));
  EXPECT_TRUE(operationOf(*net.scenario)
                  ->getNetworkFlow()
                  ->makePriorities(net.scenario->getElements())
                  .empty());
  EXPECT_EQ(net.taken(link, kJan), 0.0);
}

// Under "Padrão" an enabled drain asks for 99999.0 m³/s in every state, whatever was stored;
// under any other type its states stay as configured.
TEST(PriorityScenario, DrainsAskForEverythingOnlyUnderStandardStates) {
  for (auto type : {HydrologicalStateType::standard, HydrologicalStateType::none}) {
    PriorityNetworkBuilder net(1);
    auto drain = net.node(ElementType::drain);
    net.link(net.reservoir(0, 100, 50, 99), drain);
    net.scenario->getHydrologicalStateConfiguration()->setCurrentHydrologicalStateType(
        Vocabulary::of(type));
    for (const auto& pair : net.settings(drain)->getPrioritySeries()) pair.second->fill(3.0);
    ASSERT_TRUE(net.scenario->run(nullptr));
    const double expected = type == HydrologicalStateType::standard ? 99999.0 : 3.0;
    for (const auto& pair : net.settings(drain)->getPrioritySeries()) {
      EXPECT_EQ(pair.second->getValue(kJan), expected);
    }
  }
}

// Every reservoir and demand starts with one pair per state; a copy is deep.
TEST(PriorityScenario, CopyKeepsStatesZonesAndConfiguration) {
  PriorityNetworkBuilder net(1);
  auto reservoir = net.reservoir(0, 100, 50, 7);
  net.scenario->getHydrologicalStateConfiguration()->setNumOfStates(3, net.scenario);
  net.settings<PriorityReservoirSettings>(reservoir)->addDefaultHydrologicalZone(net.interval());
  EXPECT_EQ(net.settings(reservoir)->getPrioritySeries().size(), 3u);
  EXPECT_EQ(net.settings(net.demand(1, 1))->getPrioritySeries().size(), 3u);

  auto copy = std::static_pointer_cast<PriorityScenario>(net.scenario->copy());
  EXPECT_EQ(copy->getScenarioType().getId(), 0);
  EXPECT_EQ(copy->getHydrologicalStateConfiguration()->getNumOfStates(), 3u);
  EXPECT_NE(copy->getHydrologicalStateConfiguration(),
            net.scenario->getHydrologicalStateConfiguration());
  auto copied = Scenario::getSettings<PriorityReservoirSettings>(
      copy->getElement(reservoir->getId()), copy->getSettingsManager());
  EXPECT_EQ(copied->getPriority(), 7u);
  ASSERT_EQ(copied->getVectorOfHydrologicalZones().size(), 1u);
  EXPECT_NE(
      copied->getVectorOfHydrologicalZones()[0].serie,
      net.settings<PriorityReservoirSettings>(reservoir)->getVectorOfHydrologicalZones()[0].serie);
}

TEST(ResultsWriterFactory, PriorityScenariosHaveAWriterForEveryElement) {
  for (ElementType type : ElementSets::allElements()) {
    EXPECT_NE(ResultsWriterFactory::make({ScenarioType::priorityOptimizer, type}), nullptr);
  }
  EXPECT_NE(std::dynamic_pointer_cast<ReservoirPriorityResultsWriter>(ResultsWriterFactory::make(
                {ScenarioType::priorityOptimizer, ElementType::reservoir})),
            nullptr);
}

// A full reservoir (100 hm³) with 30 of inflow, kept full by its priority, sends 30 to a drain.
// Through a natural link they count as spill, through an artificial one as release; a natural
// link that can take only 5 spills those 5 and the rest is lost to the capacity.
TEST(ReservoirPriorityResultsWriter, NaturalOutflowIsSpillUpToTheExcess) {
  struct Case {
    ElementType link;
    double limit;              // hm³
    double released, spilled;  // hm³
  };
  for (const Case& c :
       {Case{ElementType::naturalLink, 1000, 0, 30}, Case{ElementType::artificialLink, 1000, 30, 0},
        Case{ElementType::naturalLink, 5, 0, 5}}) {
    SCOPED_TRACE(c.limit);
    PriorityNetworkBuilder net(1);
    auto reservoir = net.reservoir(0, 100, 100, 1, 1.0);
    reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(net.m3s(kJan, 30));
    net.link(reservoir, net.node(ElementType::drain), 0.0, net.m3s(kJan, c.limit), c.link);
    // Every reservoir has its river; closed, it carries nothing.
    if (c.link != ElementType::naturalLink) {
      net.link(reservoir, net.node(ElementType::drain), 0.0, 0.0);
    }
    ASSERT_TRUE(net.scenario->run(nullptr));
    EXPECT_NEAR(net.output(reservoir, SerieType::releasedVolume, kJan), c.released, 1e-9);
    EXPECT_NEAR(net.output(reservoir, SerieType::spilledVolume, kJan), c.spilled, 1e-9);
  }
}
