#include <gtest/gtest.h>

#include <functional>

#include "checks/ElementCheckFactory.h"
#include "checks/SceneryCheckFactory.h"
#include "core/RuleSettings.h"
#include "operation/PriorityNetworkBuilder.h"
#include "scenario/RuleScenario.h"
#include "support/ExpectThrow.h"

namespace {

using Finding = std::pair<std::string, std::string>;
using Findings = std::vector<Finding>;

const Date kJan(2001, 1, 1);
const Date kFeb(2001, 2, 1);
const Date kMar(2001, 3, 1);
const std::string kReservoir = "Reservatório0";
const std::string kDemand = "Demanda humana3";
const std::string kDrain = "Dreno4";
const std::string kInvalidPriority = "Valor de prioridade inválido em:";

// A valid priority scenario over the first quarter of 2001: a reservoir (priority 50, aiming at
// half of its 200 hm³, never below 10) releases by its river to a junction that a basin also
// feeds; the junction serves a demand (priority 1) that returns a fifth to the drain, and sends
// the rest on to the drain.
struct ValidPriorityNetwork {
  PriorityNetworkBuilder net;
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Node> basin, junction, drain;
  std::shared_ptr<Demand> demand;

  ValidPriorityNetwork() {
    reservoir = net.reservoir(10, 200, 100, 50, 0.5);
    basin = net.node(ElementType::basin);
    junction = net.node(ElementType::junction);
    demand = net.demand(30, 1);
    drain = net.node(ElementType::drain);
    net.link(reservoir, junction);
    net.link(basin, junction);
    net.link(junction, demand, 0.0, 9999.0, ElementType::artificialLink);
    net.link(junction, drain);
    demand->setDemandReturnPercentage(net.link(demand, drain), 20.0);
  }

  void setStateType(HydrologicalStateType type) const {
    net.scenario->getHydrologicalStateConfiguration()->setCurrentHydrologicalStateType(
        Vocabulary::of(type));
  }
  std::shared_ptr<PriorityReservoirSettings> zones() const {
    return net.settings<PriorityReservoirSettings>(reservoir);
  }
  std::shared_ptr<Serie> targetOfState(unsigned int state) const {
    return net.settings(reservoir)->getPrioritySeries().at(state).second;
  }
  // A second demand (priority 2) between the first one and the drain.
  std::shared_ptr<Demand> demandBelow() {
    auto below = net.demand(5, 2);
    net.link(demand, below);
    net.link(below, drain);
    return below;
  }
  // A second reservoir (priority 50) between the demand and the drain.
  std::shared_ptr<Reservoir> reservoirBelow() {
    auto below = net.reservoir(10, 200, 100, 50, 0.5);
    net.link(demand, below, 0.0, 9999.0, ElementType::artificialLink);
    net.link(below, drain);
    return below;
  }

  // Checks as a run does: after the preparation that gives drains their demand.
  Findings check() const {
    net.scenario->preRun();
    auto sceneryCheck = SceneryCheckFactory::make(net.scenario);
    sceneryCheck->check();
    Findings findings;
    for (const auto& error : sceneryCheck->getAllErrors()) {
      findings.emplace_back(error.elementName, error.message);
    }
    return findings;
  }
};

struct Case {
  const char* name;
  std::function<void(ValidPriorityNetwork&)> change;
  Findings expected;
};

void expectFindings(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ValidPriorityNetwork network;
    c.change(network);
    EXPECT_EQ(network.check(), c.expected);
  }
}

// A rule scenario that tells another kind, for the kinds without a scenario class of their own.
template <ScenarioType kind>
class RuleScenarioOfKind : public RuleScenario {
 public:
  RuleScenarioOfKind()
      : RuleScenario(std::make_shared<ExecutionContinuous>(), 1,
                     Interval(kJan, kMar, Vocabulary::of(Periodicity::monthly)), "Curva") {}
  Enum<ScenarioType> getScenarioType() const override { return Vocabulary::of(kind); }
};

}  // namespace

TEST(PrioritySceneryCheck, AValidNetworkRunsAndLimitValuesAreAccepted) {
  ValidPriorityNetwork valid;
  EXPECT_EQ(valid.check(), Findings{});
  EXPECT_TRUE(valid.net.scenario->run(nullptr));

  expectFindings({
      {"target of exactly 1.0",
       [](ValidPriorityNetwork& n) {
         n.reservoir->getInputSerie(SerieType::targetVolume)->setValue(kFeb, 1.0);
       },
       {}},
      {"target of exactly the minimum (0.05 * 200 = 10)",
       [](ValidPriorityNetwork& n) {
         n.reservoir->getInputSerie(SerieType::targetVolume)->setValue(kFeb, 0.05);
       },
       {}},
      {"priorities 1 and 99",
       [](ValidPriorityNetwork& n) {
         n.net.settings(n.reservoir)->setPriority(1);
         n.net.settings(n.demand)->setPriority(99);
       },
       {}},
      {"drain of priority 100",
       [](ValidPriorityNetwork& n) { n.net.settings(n.drain)->setPriority(100); },
       {}},
      {"demand below of the same priority",
       [](ValidPriorityNetwork& n) { n.net.settings(n.demandBelow())->setPriority(1); },
       {}},
      {"zones and states of a type not in use are not read",
       [](ValidPriorityNetwork& n) {
         n.net.settings(n.reservoir)->setAllPriorities(0);
         n.zones()->addHydrologicalZone({0.5, 0, n.targetOfState(0)});
       },
       {}},
  });
}

TEST(PrioritySceneryCheck, EachReservoirFaultIsReportedAlone) {
  const auto targetAt = [](ValidPriorityNetwork& n, const Date& date, double value) {
    n.reservoir->getInputSerie(SerieType::targetVolume)->setValue(date, value);
  };
  expectFindings({
      {"priority 0",
       [](ValidPriorityNetwork& n) { n.net.settings(n.reservoir)->setPriority(0); },
       {{kReservoir, kInvalidPriority}}},
      {"priority 100",
       [](ValidPriorityNetwork& n) { n.net.settings(n.reservoir)->setPriority(100); },
       {{kReservoir, kInvalidPriority}}},
      {"empty target",
       [&](ValidPriorityNetwork& n) { targetAt(n, kFeb, -999.0); },
       {{kReservoir + "-Volume meta-01-02-2001--999.000000", "Valor vazio em:"}}},
      {"target above 1, told once for two dates",
       [&](ValidPriorityNetwork& n) {
         targetAt(n, kJan, 1.2);
         targetAt(n, kMar, 1.5);
       },
       {{kReservoir, "Valor maior que 1:"}}},
      {"target below the minimum (0.04 * 200 = 8 < 10)",
       [&](ValidPriorityNetwork& n) { targetAt(n, kMar, 0.04); },
       {{kReservoir, "(Valor * volume máximo) menor que o volume mínimo:"}}},
      {"state of priority 0",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::standard);
         n.net.settings(n.reservoir)->setPriorityOfPairPrioritySerie(0, 1);
       },
       {{kReservoir, kInvalidPriority}}},
      {"negative target of a state",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::standard);
         n.targetOfState(1)->setValue(kFeb, -1.0);
       },
       {{kReservoir + "-Volume meta-01-02-2001--1.000000-2 de 2", "Valor negativo em:"}}},
      {"zone of priority 0",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::perReservoir);
         n.zones()->addDefaultHydrologicalZone(n.net.interval());
         n.zones()->setPriorityOfHydrologicalZone(0, 0);
       },
       {{kReservoir, kInvalidPriority}}},
      {"empty target of the second of three zones",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::perReservoir);
         for (int zone = 0; zone < 3; ++zone)
           n.zones()->addDefaultHydrologicalZone(n.net.interval());
         n.zones()->getVectorOfHydrologicalZones()[1].serie->setValue(kMar, -999.0);
       },
       {{kReservoir + "-Volume meta-01-03-2001--999.000000-2 de 3", "Valor vazio em:"}}},
      {"monthly zones never made",
       [](ValidPriorityNetwork& n) { n.setStateType(HydrologicalStateType::perReservoirMonthly); },
       {{kReservoir, "Estado hidrológico por reservatório mensal não configurado em:"}}},
      {"monthly zone of priority 0 in July",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::perReservoirMonthly);
         n.zones()->initHydrologicalZoneMonthly(2, n.net.interval());
         n.zones()->setPriorityOfHydrologicalZoneMonthly(0, 1, 6);
       },
       {{kReservoir, kInvalidPriority}}},
      {"negative target of a December zone",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::perReservoirMonthly);
         n.zones()->initHydrologicalZoneMonthly(2, n.net.interval());
         n.zones()->getVectorOfHydrologicalZonesMonthly(11)[0].serie->setValue(kJan, -2.5);
       },
       {{kReservoir + "-Volume meta-01-01-2001--2.500000-1 de 2", "Valor negativo em:"}}},
  });
}

TEST(PrioritySceneryCheck, EachDemandFaultIsReportedAlone) {
  expectFindings({
      {"priority 0",
       [](ValidPriorityNetwork& n) { n.net.settings(n.demand)->setPriority(0); },
       {{kDemand, kInvalidPriority}}},
      {"priority 100, above a drain of 100",
       [](ValidPriorityNetwork& n) {
         n.net.settings(n.demand)->setPriority(100);
         n.net.settings(n.drain)->setPriority(100);
       },
       {{kDemand, kInvalidPriority}}},
      {"drain of priority 0, below no demand",
       [](ValidPriorityNetwork& n) {
         n.demand->getDownstreamLinks()[0]->setEnabled(false);
         n.net.settings(n.drain)->setPriority(0);
       },
       {{kDrain, kInvalidPriority}}},
      {"drain of priority 101",
       [](ValidPriorityNetwork& n) { n.net.settings(n.drain)->setPriority(101); },
       {{kDrain, kInvalidPriority}}},
      {"state of priority 100, also for a drain",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::standard);
         n.net.settings(n.drain)->setPriorityOfPairPrioritySerie(100, 1);
       },
       {{kDrain, kInvalidPriority}}},
      {"negative demand of a state",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::standard);
         n.net.settings(n.demand)->getPrioritySeries()[0].second->setValue(kJan, -1.0);
       },
       {{kDemand + "-Demanda de estados hidrológico-01-01-2001--1.000000-1 de 2",
         "Valor negativo em:"}}},
      {"demand below that comes first",
       [](ValidPriorityNetwork& n) {
         n.demandBelow();
         n.net.settings(n.demand)->setPriority(5);
       },
       {{kDemand, "Demanda com prioridade inferior ao nó a jusante do tipo demanda:" + kDemand +
                      ",Demanda humana10"}}},
      {"reservoir below that comes first",
       [](ValidPriorityNetwork& n) {
         n.reservoirBelow();
         n.net.settings(n.demand)->setPriority(60);
       },
       {{kDemand, "Demanda com prioridade inferior ao nó a jusante do tipo reservatório:"}}},
      {"reservoir below whose state comes first",
       [](ValidPriorityNetwork& n) {
         n.setStateType(HydrologicalStateType::standard);
         auto below = n.reservoirBelow();
         n.net.settings(n.demand)->setPriorityOfPairPrioritySerie(30, 1);
         n.net.settings(below)->setPriorityOfPairPrioritySerie(20, 1);
       },
       {{kDemand,
         "Demanda com prioridade inferior ao nó a jusante do tipo reservatório estado "
         "hidrológico:"}}},
  });
}

TEST(PrioritySceneryCheck, SeveralFaultsAreAllReportedInTableOrderAndRunsAreRefused) {
  ValidPriorityNetwork network;
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  network.reservoir->getReservoirInfo().initVol = -1;
  network.net.settings(network.reservoir)->setPriority(0);
  network.reservoir->getInputSerie(SerieType::targetVolume)->setValue(kFeb, 1.2);
  network.demand->setDemandReturnPercentage(network.demand->getDownstreamLinks()[0], 150.0);
  network.net.settings(network.demand)->setPriority(100);
  network.net.settings(network.drain)->setPriority(101);
  const Findings expected = {
      {kReservoir, "Volume inicial negativo em:"},
      {kReservoir, kInvalidPriority},
      {kReservoir, "Valor maior que 1:"},
      {kDemand, "O somatário das porcentagens de retorno de demanda excede o valor de 100%:"},
      {kDemand, kInvalidPriority},
      {kDrain, kInvalidPriority}};
  EXPECT_EQ(network.check(), expected);
  EXPECT_EQ(network.check(), expected);  // a second check gives the same list

  EXPECT_FALSE(network.net.scenario->run(nullptr));
  const auto& sceneryCheck = network.net.scenario->getSceneryCheck();
  EXPECT_NE(dynamic_cast<const PrioritySceneryCheck*>(sceneryCheck.get()), nullptr);
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getId(), 0);
  EXPECT_EQ(sceneryCheck->getNumErrors(), expected.size());
  EXPECT_EQ(sceneryCheck->getElementErrors(network.reservoir->getId()).size(), 3u);
  // The results of the earlier run are kept.
  EXPECT_TRUE(network.reservoir->hasResults());
  EXPECT_TRUE(network.demand->hasResults());
}

TEST(ElementCheckFactory, AKindOfScenarioWithoutChecksIsRefused) {
  ValidPriorityNetwork network;
  struct UnknownKind : RuleScenarioOfKind<ScenarioType::ruleSimulator> {
    Enum<ScenarioType> getScenarioType() const override {
      return {static_cast<ScenarioType>(9), "Desconhecido"};
    }
  };
  EXPECT_THROW_TEXT(ElementCheckFactory::make(network.reservoir, std::make_shared<UnknownKind>()),
                    std::invalid_argument, "ElementCheckFactory::make(): invalid parameter key");
}

TEST(SceneryCheckFactory, EachScenarioKindWithAScenarioGetsItsCheck) {
  ValidPriorityNetwork priority;
  EXPECT_NE(std::dynamic_pointer_cast<PrioritySceneryCheck>(
                SceneryCheckFactory::make(priority.net.scenario)),
            nullptr);
  auto rule = std::make_shared<RuleScenarioOfKind<ScenarioType::ruleSimulator>>();
  EXPECT_NE(std::dynamic_pointer_cast<RuleSceneryCheck>(SceneryCheckFactory::make(rule)), nullptr);
  for (const std::shared_ptr<Scenario>& unknown : std::vector<std::shared_ptr<Scenario>>{
           std::make_shared<RuleScenarioOfKind<ScenarioType::ruleOptimizer>>(),
           std::make_shared<RuleScenarioOfKind<ScenarioType::systemGuaranteeCurve>>()}) {
    EXPECT_THROW_TEXT(SceneryCheckFactory::make(unknown), std::invalid_argument,
                      "SceneryCheckFactory::make(): invalid scenery type");
  }
}

// Each trial of a guarantee curve is a rule simulation: its elements get the rule checks.
TEST(SceneryCheckFactory, GuaranteeCurveScenariosAreCheckedAsRuleSimulations) {
  auto scenario = std::make_shared<RuleScenarioOfKind<ScenarioType::guaranteeCurve>>();
  auto reservoir =
      std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  scenario->addElement(reservoir, true);
  auto drain = std::static_pointer_cast<Node>(ElementFactory::make(ElementType::drain));
  scenario->addElement(drain, true);
  auto river =
      LinkFactory<NaturalLink>::make(reservoir, drain, "", Vocabulary::of(LinkAddonType::none));
  scenario->addElement(river, true);
  river->getInputSerie(SerieType::linkLimit)->fill(1000.0);
  river->getInputSerie(SerieType::transitLossPercentage)->fill(0.0);
  ReservoirInfo& info = reservoir->getReservoirInfo();
  info.cav = {{100, 0, 0}, {101, 2, 10}, {102, 5, 30}, {103, 9, 70}, {104, 14, 150}};
  info.minVol = 10;
  info.maxVol = 150;
  info.initVol = 50;
  for (SerieType type :
       {SerieType::precipitation, SerieType::evaporation, SerieType::naturalIncrementalFlow}) {
    reservoir->getInputSerie(type)->fill(1.0);
  }

  scenario->preRun();
  auto sceneryCheck = SceneryCheckFactory::make(scenario);
  EXPECT_NE(std::dynamic_pointer_cast<GuaranteeCurveSceneryCheck>(sceneryCheck), nullptr);
  sceneryCheck->check();
  // The matrix made with the reservoir has one line of nothing.
  EXPECT_EQ(sceneryCheck->getAllErrors(),
            (std::vector<CheckCompleteness::ErrorStruct>{
                {"Reservatório0", "O somatório da linha i não pode ser zero:(i = 0)"}}));
  std::static_pointer_cast<RuleSettings>(
      scenario->getSettingsManager().getSettings(reservoir->getId()))
      ->setAllocationByMatrixOfDouble({{0, 2}, {100, 100}});
  sceneryCheck->check();
  EXPECT_TRUE(sceneryCheck->isOk());
}
