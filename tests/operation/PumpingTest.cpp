#include <gtest/gtest.h>

#include "checks/SceneryCheckFactory.h"
#include "core/Demand.h"
#include "core/LinkAddonPumping.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/PumpingManager.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

std::shared_ptr<TransientPumpingPeriod> period(unsigned int from, unsigned int to) {
  auto made = std::make_shared<TransientPumpingPeriod>(nullptr, true);
  made->initialValue = from;
  made->finalValue = to;
  return made;
}

std::shared_ptr<TransientPumpingAddon> pump(double flow,
                                            std::vector<std::shared_ptr<TransientPumpingPeriod>> periods) {
  auto made = std::make_shared<TransientPumpingAddon>(nullptr, true);
  made->flow = flow;
  made->periods = std::move(periods);
  return made;
}

// Costs rise with the flow and with the month: at flow f of the table {0, 2, 4} month m costs
// {0, 10, 30} * m.
std::vector<std::shared_ptr<PumpingFlowCost>> costTable() {
  std::vector<std::shared_ptr<PumpingFlowCost>> rows;
  for (const auto& [flow, cost] : std::vector<std::pair<double, double>>{{0, 0}, {2, 10}, {4, 30}}) {
    auto row = std::make_shared<PumpingFlowCost>();
    row->flow = flow;
    for (int m = 0; m < 12; ++m) row->costs[m] = cost * (m + 1);
    rows.push_back(row);
  }
  return rows;
}

// A reservoir releasing 5 m³/s, half by its river to a drain and half by a pumping line to a
// town, over the first quarter of 2001.
struct PumpedSupply {
  NetworkBuilder net{Interval(Date(2001, 1, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Reservoir> reservoir;
  std::shared_ptr<Link> river, line;
  std::shared_ptr<LinkAddonPumping> pumping = std::make_shared<LinkAddonPumping>();

  PumpedSupply() {
    reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    auto town = net.node(ElementType::humanDemand);
    river = net.link(reservoir, net.node(ElementType::drain));
    line = net.link(reservoir, town, 1000.0, ElementType::artificialLink);
    line->setLinkAddon(pumping);
    pumping->addToFlowCostVector(costTable());
    town->getInputSerie(SerieType::demand)->fill(3.0);
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{100, 0, 0}, {101, 2, 10}, {102, 5, 30}, {103, 9, 70}, {104, 14, 150}};
    info.minVol = 10;
    info.maxVol = 150;
    info.initVol = 100;
    for (SerieType type : {SerieType::precipitation, SerieType::evaporation,
                           SerieType::naturalIncrementalFlow}) {
      reservoir->getInputSerie(type)->fill(0.0);
    }
    const auto id = [](const std::shared_ptr<Element>& e) { return double(e->getId()); };
    net.allocation(reservoir, {{id(reservoir), id(river), id(line)}, {100, 50, 50}});
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(5.0);
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
  }
};

}  // namespace

TEST(Pumping, SupplyableFlowOfThePumps) {
  auto line = std::static_pointer_cast<Link>(ElementFactory::make(ElementType::artificialLink));
  line->setName("Adutora");
  std::string errorName;
  // Two half days that only touch: 24 h at 2 m³/s.
  EXPECT_EQ(PumpingManager::getTotalSupplyableFlow({pump(2.0, {period(0, 720), period(720, 1440)})},
                                                   *line, errorName),
            48.0);
  EXPECT_TRUE(errorName.empty());
  EXPECT_EQ(PumpingManager::getTotalSupplyableFlow({pump(2.0, {period(0, 800), period(720, 1440)})},
                                                   *line, errorName),
            -1.0);
  EXPECT_EQ(errorName, "Adutora");
  // A disabled pump stops the sum: the pump behind it does not count.
  auto off = pump(5.0, {period(0, 60)});
  off->enabled = false;
  EXPECT_EQ(PumpingManager::getTotalSupplyableFlow(
                {pump(1.0, {period(0, 60)}), off, pump(3.0, {period(0, 1440)})}, *line, errorName),
            1.0);
}

TEST(Pumping, CostTableEditing) {
  std::vector<std::shared_ptr<TransientPumpingFlowCost>> rows;
  for (const auto& source : costTable()) rows.push_back(std::make_shared<TransientPumpingFlowCost>(source));
  EXPECT_EQ(PumpingManager::updateTransientPumpingFlowCostVector(rows, 1, 0, 0.0), -1);
  EXPECT_EQ(PumpingManager::updateTransientPumpingFlowCostVector(rows, 1, 0, 4.0), 1);
  EXPECT_EQ(PumpingManager::updateTransientPumpingFlowCostVector(rows, 1, 3, 45.0), 0);
  EXPECT_EQ(rows[1]->costs[2], 45.0);
  EXPECT_EQ(PumpingManager::updateTransientPumpingFlowCostVector(rows, 1, 2, -999.0), 0);
  rows[2]->costs[0] = 5.0;  // now below the row before: re-testing the cell refuses it
  EXPECT_EQ(PumpingManager::updateTransientPumpingFlowCostVector(rows, 2, 1, -1.0), -1);
  EXPECT_TRUE(PumpingManager::canAddNewRowToTransientPumpingFlowCostVector(rows, 1, 2));
  auto blank = std::make_shared<TransientPumpingFlowCost>(nullptr);
  blank->init();
  EXPECT_FALSE(blank->isEnabled());
  rows[1] = blank;
  EXPECT_FALSE(PumpingManager::canAddNewRowToTransientPumpingFlowCostVector(rows, 1, 2));
}

TEST(Pumping, CostSeriesOfARunByTheMonthlyTable) {
  PumpedSupply supply;
  ASSERT_TRUE(supply.net.scenario->run(nullptr));
  // The line takes 2.5 m³/s; in month m the table runs from 10m at 2 to 30m at 4 m³/s, so
  // 2.5 m³/s costs 10m + 0.5 * 10m = 15m.
  for (unsigned int month = 1; month <= 3; ++month) {
    const Date date(2001, month, 1);
    EXPECT_NEAR(supply.line->getOutputSerie(SerieType::inflow, 0)->getValue(date), 2.5, 1e-9);
    EXPECT_NEAR(supply.line->getOutputSerie(SerieType::pumpingCost, 0)->getValue(date), 15.0 * month,
                1e-9);
  }
  EXPECT_EQ(supply.line->getVectorOfSeries(0).size(), 4u);  // with the cost
  EXPECT_EQ(supply.river->getVectorOfSeries(0).size(), 3u);
  EXPECT_THROW_TEXT(supply.pumping->getRegressionFlowCost(1.0, 13), std::invalid_argument,
                    "LinkAddonPumping::getRegressionFlowCost: invalid month");

  // The same line as a plain propagation line runs as without any add-on.
  supply.line->setLinkAddon(LinkAddonFactory::make(LinkAddonType::propagation));
  ASSERT_TRUE(supply.net.scenario->run(nullptr));
  EXPECT_NEAR(supply.line->getOutputSerie(SerieType::outflow, 0)->getValue(Date(2001, 2, 1)), 2.5,
              1e-9);
  EXPECT_EQ(supply.line->getOutputSerie(SerieType::pumpingCost, 0)->getValue(Date(2001, 2, 1)),
            -999.0);
}

TEST(Pumping, CostTablesAreCheckedBeforeARun) {
  const std::string name = "Trecho artificial4";
  const auto findings = [](PumpedSupply& supply) {
    supply.net.scenario->preRun();
    auto check = SceneryCheckFactory::make(supply.net.scenario);
    check->check();
    std::vector<std::string> messages;
    for (const auto& error : check->getAllErrors()) messages.push_back(error.message);
    return messages;
  };
  PumpedSupply shortTable;
  shortTable.pumping->clearTables();
  shortTable.pumping->addToFlowCostVector({costTable()[0], costTable()[1]});
  EXPECT_EQ(findings(shortTable), std::vector<std::string>{
                                      "Matriz do trecho de bombeamento possui menos que 3 linhas em:"});
  EXPECT_FALSE(shortTable.net.scenario->run(nullptr));

  PumpedSupply badRows;
  auto table = costTable();
  table[0]->flow = 1.0;
  table[2]->flow = 1.5;
  table[2]->costs[4] = 10.0;
  badRows.pumping->clearTables();
  badRows.pumping->addToFlowCostVector(table);
  EXPECT_EQ(findings(badRows),
            (std::vector<std::string>{
                "A primeira linha da matriz de bombeamento deve ser composta de zeros:",
                "Matriz de bombeamento inválida. O valor da vazão da linha i é menor ou igual a "
                "vazão da linha i + 1: (i = 1, i + 1 = 2)",
                "Matriz de bombeamento inválida. O valor do custo da linha i + 1 no mês m é menor "
                "ou igual ao o custo na linha i: (i = 1, i + 1 = 2, m = 5)"}));
}

TEST(Pumping, StudyMatricesOfARun) {
  PumpedSupply supply;
  ASSERT_TRUE(supply.net.scenario->run(nullptr));
  PumpingManager::Matrix flows, costs, deficits;
  PumpingManager::fillSeriesMatrices(0, supply.net.scenario, {supply.line}, flows, costs, deficits);
  ASSERT_EQ(flows.size(), 3u);
  EXPECT_NEAR(flows[1][0], 2.5, 1e-9);
  EXPECT_NEAR(costs[1][0], 30.0, 1e-9);
  // The town asks 3 m³/s and gets 2.5: a human deficit of 0.5, worth 0.5 * 4 at 4 per m³/s.
  EXPECT_NEAR(deficits[0][0], 0.5, 1e-9);
  EXPECT_EQ(deficits[0][3], 0.0);
  EXPECT_NEAR(PumpingManager::evalDeficitsCosts({4, 1, 1, 1}, deficits)[0][0], 2.0, 1e-9);

  // 48 m³/s·h spread over 24 h pumps 2 m³/s: month m costs 10m, and 0.5 less than the run sent.
  PumpingManager::Matrix pumped, pumpingCosts, surplus;
  PumpingManager::evalPumping(supply.net.scenario->getInterval(), {48.0, -1.0},
                              {supply.line, supply.river}, flows, pumped, pumpingCosts, surplus,
                              24.0);
  ASSERT_EQ(pumped.size(), 3u);
  EXPECT_EQ(pumped[0], std::vector<double>{2.0});
  EXPECT_NEAR(pumpingCosts[2][0], 30.0, 1e-9);
  EXPECT_NEAR(surplus[0][0], -0.5, 1e-9);
  EXPECT_NEAR(PumpingManager::m3sToHM3(1.0, Date(2001, 1, 1)), 2.6784, 1e-12);
}
