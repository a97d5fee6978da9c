#include <gtest/gtest.h>

#include <functional>

#include "checks/SceneryCheck.h"
#include "checks/SceneryCheckFactory.h"
#include "core/Demand.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/ExecutionWindowed.h"
#include "rules/ConstReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOneStaticReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

using Finding = std::pair<std::string, std::string>;
using Findings = std::vector<Finding>;

// A valid rule scenario over the first quarter of 2001: a reservoir releasing by its river to a
// drain, and a basin feeding a junction that serves a demand returning to the drain.
struct ValidNetwork {
  NetworkBuilder net{Interval(Date(2001, 1, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Node> drain, basin, junction;
  std::shared_ptr<Demand> demand;
  std::shared_ptr<Link> river, feed, supply, back;

  ValidNetwork() {
    reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    drain = net.node(ElementType::drain);
    basin = net.node(ElementType::basin);
    junction = net.node(ElementType::junction);
    demand = std::static_pointer_cast<Demand>(net.node(ElementType::humanDemand));
    river = net.link(reservoir, drain);
    feed = net.link(basin, junction, 1000.0, ElementType::artificialLink);
    supply = net.link(junction, demand, 1000.0, ElementType::artificialLink);
    back = net.link(demand, drain);
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{100, 0, 0}, {101, 2, 10}, {102, 5, 30}, {103, 9, 70}, {104, 14, 150}};
    info.minVol = 10;
    info.maxVol = 150;
    info.initVol = 50;
    for (SerieType type : {SerieType::precipitation, SerieType::evaporation,
                           SerieType::naturalIncrementalFlow}) {
      reservoir->getInputSerie(type)->fill(1.0);
    }
    demand->getInputSerie(SerieType::demand)->fill(3.0);
    demand->setDemandReturnPercentage(back, 20.0);
    net.allocation(reservoir, {{id(reservoir), id(river)}, {100, 100}});
    net.allocation(junction, {{id(junction), id(supply)}, {0, 0}, {100, 100}});
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(5.0);
    settings()->setRule(rule);
  }

  static double id(const std::shared_ptr<Element>& e) { return e->getId(); }
  std::shared_ptr<ReservoirRuleSettings> settings() const {
    return Scenario::getSettings<ReservoirRuleSettings>(reservoir,
                                                        net.scenario->getSettingsManager());
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

const std::string kReservoir = "Reservatório0";

struct Case {
  const char* name;
  std::function<void(ValidNetwork&)> fault;
  Findings expected;
};

}  // namespace

TEST(SceneryCheck, AValidNetworkRunsAndEachFaultIsReportedInItsWords) {
  ValidNetwork valid;
  EXPECT_EQ(valid.check(), Findings{});
  EXPECT_TRUE(valid.net.scenario->run(nullptr));

  const std::string cavRows =
      "Matriz da CAV inválida. O valor da linha i de (cota, área ou volume) deve ser maior ou "
      "igual ao valor da linha i - 1:";
  const std::vector<Case> cases = {
      {"empty value", [](ValidNetwork& n) {
         n.reservoir->getInputSerie(SerieType::precipitation)->setValue(Date(2001, 2, 1), -999.0);
       },
       {{kReservoir + "-Precipitação-01-02-2001--999.000000", "Valor vazio em:"}}},
      {"negative value", [](ValidNetwork& n) {
         n.reservoir->getInputSerie(SerieType::evaporation)->setValue(Date(2001, 1, 1), -1.0);
       },
       {{kReservoir + "-Evaporação-01-01-2001--1.000000", "Valor negativo em:"}}},
      {"minimum above maximum", [](ValidNetwork& n) {
         n.reservoir->getReservoirInfo().minVol = 140;
         n.reservoir->getReservoirInfo().maxVol = 120;
       },
       {{kReservoir, "Volume mínimo maior que volume máximo em:"}}},
      {"initial above maximum", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().initVol = 160; },
       {{kReservoir, "Volume inicial maior que volume máximo em:"}}},
      {"negative initial", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().initVol = -1; },
       {{kReservoir, "Volume inicial negativo em:"}}},
      {"negative maximum", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().maxVol = -1; },
       {{kReservoir, "Volume máximo negativo em:"},
        {kReservoir, "Volume mínimo maior que volume máximo em:"},
        {kReservoir, "Volume inicial maior que volume máximo em:"}}},
      {"negative minimum", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().minVol = -1; },
       {{kReservoir, "Volume mínimo negativo em:"},
        {kReservoir,
         "O valor de volume mínimo do reservatório deve ser maior ou igual ao volume mínimo da "
         "matriz da CAV:"}}},
      {"no natural outlet", [](ValidNetwork& n) { n.river->setEnabled(false); },
       {{kReservoir, "Quantidade de trechos naturais a jusantes diferente de 1:"}}},
      {"negative maximum release",
       [](ValidNetwork& n) { n.reservoir->getReservoirInfo().maxRelease = -1; },
       {{kReservoir, "Valor de liberação negativo em:"}}},
      {"empty table", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().cav.clear(); },
       {{kReservoir, "CAV vazia em:"}, {kReservoir, "Matriz da CAV possui menos que 4 linhas em:"}}},
      {"first row", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().cav[0][1] = 1; },
       {{kReservoir, "A primeira linha da CAV deve possuir valor 0.0 para área e volume:"}}},
      {"minimum below the table", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().minVol = 5; },
       {{kReservoir,
         "O valor de volume mínimo do reservatório deve ser maior ou igual ao volume mínimo da "
         "matriz da CAV:"}}},
      {"maximum above the table",
       [](ValidNetwork& n) { n.reservoir->getReservoirInfo().maxVol = 160; },
       {{kReservoir,
         "O valor de volume máximo do reservatório deve ser menor ou igual ao volume máximo da "
         "matriz da CAV:"}}},
      {"falling row", [](ValidNetwork& n) { n.reservoir->getReservoirInfo().cav[3][2] = 20; },
       {{kReservoir, cavRows + "(i = 3, i - 1 = 2)"}}},
      {"three rows", [](ValidNetwork& n) {
         n.reservoir->getReservoirInfo().cav = {{100, 0, 0}, {101, 2, 10}, {104, 14, 150}};
       },
       {{kReservoir, "Matriz da CAV possui menos que 4 linhas em:"}}},
      {"falling releases", [](ValidNetwork& n) {
         n.net.allocation(n.reservoir, {{n.id(n.reservoir), n.id(n.river)}, {100, 100}, {50, 50}});
       },
       {{kReservoir,
         "Matrix de alocação inválida, as liberações não estão em ordem crescente o valor de "
         "liberação da linha i + 1 é menor igual ao da linha i:(i = 0, i + 1 = 1)"}}},
      {"line above its release", [](ValidNetwork& n) {
         n.net.allocation(n.reservoir, {{n.id(n.reservoir), n.id(n.river)}, {100, 120}});
       },
       {{kReservoir, "O somatório da linha i excede ao da liberação:(i = 0)"}}},
      {"line of nothing", [](ValidNetwork& n) {
         n.net.allocation(n.reservoir, {{n.id(n.reservoir), n.id(n.river)}, {100, 0}});
       },
       {{kReservoir, "O somatório da linha i não pode ser zero:(i = 0)"}}},
      {"empty matrix", [](ValidNetwork& n) { n.settings()->setAllocation({}); },
       {{kReservoir, "Matriz de alocação vazia:"}}},
      {"junction line not shared in full", [](ValidNetwork& n) {
         n.net.allocation(n.junction, {{n.id(n.junction), n.id(n.supply)}, {0, 0}, {100, 90}});
       },
       {{"Junção3", "O somatório da linha i não é o mesmo da liberação:(i = 1)"}}},
      {"dependency not set",
       [](ValidNetwork& n) { n.settings()->setRule(std::make_shared<VolDepOneStaticReleaseRule>()); },
       {{kReservoir, "Dependência não configurada:"}}},
      {"dependency disabled", [](ValidNetwork& n) {
         auto rule = std::make_shared<VolDepOneStaticReleaseRule>();
         auto other = n.net.node(ElementType::reservoir);
         rule->setReservoirDependency(other);
         other->setEnabled(false);
         n.settings()->setRule(rule);
       },
       {{kReservoir, "Reservatório de dependência não está habilitado:"}}},
      {"loss above 100 %", [](ValidNetwork& n) {
         n.river->getInputSerie(SerieType::transitLossPercentage)->setValue(Date(2001, 2, 1), 150);
       },
       {{"Trecho natural5-Perda em trânsito-01-02-2001-150.000000", "Valor além de 100% em:"}}},
      {"negative return",
       [](ValidNetwork& n) { n.demand->setDemandReturnPercentage(n.back, -10.0); },
       {{"Demanda humana4", "Valor negativo no retorno de demanda:"}}},
      {"returns above 100 %",
       [](ValidNetwork& n) { n.demand->setDemandReturnPercentage(n.back, 150.0); },
       {{"Demanda humana4",
         "O somatário das porcentagens de retorno de demanda excede o valor de 100%:"}}},
      {"demand without a drain below", [](ValidNetwork& n) {
         auto end = n.net.node(ElementType::junction);
         n.net.link(n.demand, end);
       },
       {{"Demanda humana4", "Trecho de demanda sem um dreno a jusante:Demanda humana4,Junção9"}}},
      {"window longer than the interval", [](ValidNetwork& n) {
         auto method = std::make_shared<ExecutionWindowed>();
         method->setWindowSize(12);
         n.net.scenario->setExecutionMethod(method);
       },
       {{"Teste", "Período do intervalo menor que a quantidade de datas da janela:"}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    ValidNetwork network;
    c.fault(network);
    EXPECT_EQ(network.check(), c.expected);
  }
}

TEST(SceneryCheck, SeveralFaultsAreAllReportedInTableOrderAndRunsAreRefused) {
  ValidNetwork network;
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  network.reservoir->getReservoirInfo().initVol = -1;
  network.reservoir->getReservoirInfo().maxRelease = -1;
  network.demand->setDemandReturnPercentage(network.back, 150.0);
  const Findings expected = {
      {kReservoir, "Volume inicial negativo em:"},
      {kReservoir, "Valor de liberação negativo em:"},
      {"Demanda humana4",
       "O somatário das porcentagens de retorno de demanda excede o valor de 100%:"}};
  EXPECT_EQ(network.check(), expected);
  EXPECT_EQ(network.check(), expected);  // a second check gives the same list
  EXPECT_FALSE(network.net.scenario->run(nullptr));
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getId(), 0);
  EXPECT_EQ(network.net.scenario->getSceneryCheck()->getNumErrors(), 3u);
  // The earlier results are kept.
  EXPECT_TRUE(network.reservoir->hasResults());
  EXPECT_EQ(network.net.scenario->getSceneryCheck()->getElementErrors(network.reservoir->getId()).size(),
            2u);
  EXPECT_THROW_TEXT(network.net.scenario->getSceneryCheck()->getElementErrors(99),
                    std::invalid_argument, "SceneryCheck::getElementErrors: invalid element id");
}

TEST(SceneryCheck, DisabledElementsAreNotChecked) {
  ValidNetwork network;
  network.demand->setDemandReturnPercentage(network.back, 150.0);
  network.demand->setEnabled(false);
  EXPECT_EQ(network.check(), Findings{});
}
