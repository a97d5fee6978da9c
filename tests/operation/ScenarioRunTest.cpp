#include <gtest/gtest.h>

#include "checks/SceneryCheck.h"
#include "common/PeriodWalker.h"
#include "core/KOVACoreProgressBar.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "operation/RuleOperation.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

// A rule operation in which each basin sends its natural flow into its outgoing links, so that
// water enters a network made only of basins, junctions and links.
class BasinFedOperation : public RuleOperation {
 public:
  using RuleOperation::RuleOperation;
  double release(const std::shared_ptr<Link>& link) override {
    const auto upstream = link->getUpstream();
    if (upstream->getType() != ElementType::basin) return RuleOperation::release(link);
    return upstream->getInputSerie(SerieType::naturalIncrementalFlow)->getValue(getDate());
  }
};

class BasinFedScenario : public RuleScenario {
 public:
  using RuleScenario::RuleScenario;

 protected:
  std::shared_ptr<OperationSystem> getOperationSystem() override {
    return std::make_shared<BasinFedOperation>(getSettingsManager(), getElements(), getInterval(),
                                               false, getScenarioType());
  }
  std::shared_ptr<Scenario> copySpecific() const override {
    return std::make_shared<BasinFedScenario>(getExecutionMethod()->copy(), getId(), getInterval(),
                                              getName());
  }
};

class FailingCheck : public SceneryCheck {
 public:
  using SceneryCheck::SceneryCheck;
  void check() override {
    clean();
    addError("Teste", "Falta a série");
  }
};

// Two basins feed junction J1 (one through a link that loses 10 %), and J1 shares 60/40 between
// two junctions, the first link limited to 7 m³/s.
struct TwoBasinNetwork {
  NetworkBuilder net{NetworkBuilder::monthly(2000, 2009)};
  std::shared_ptr<Node> basin1, basin2, j1, j2, j3;
  std::shared_ptr<Link> b1ToJ1, b2ToJ1, toJ2, toJ3;

  TwoBasinNetwork() {
    net.scenario = std::make_shared<BasinFedScenario>(std::make_shared<ExecutionContinuous>(), 1,
                                                      net.scenario->getInterval(), "Bacias");
    basin1 = net.node(ElementType::basin);
    basin2 = net.node(ElementType::basin);
    j1 = net.node(ElementType::junction);
    j2 = net.node(ElementType::junction);
    j3 = net.node(ElementType::junction);
    b1ToJ1 = net.link(basin1, j1);
    b2ToJ1 = net.link(basin2, j1, 1000.0, ElementType::artificialLink);
    toJ2 = net.link(j1, j2, 7.0);
    toJ3 = net.link(j1, j3);
    b1ToJ1->getInputSerie(SerieType::transitLossPercentage)->fill(10.0);
    net.allocation(j1, {{double(j1->getId()), double(toJ2->getId()), double(toJ3->getId())},
                        {0, 0, 0},
                        {100, 60, 40}});
    // Basin 1 gives 10 m³/s plus the month number, basin 2 a steady 5 m³/s.
    PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
      basin1->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, 10.0 + date.getMonth());
    });
    basin2->getInputSerie(SerieType::naturalIncrementalFlow)->fill(5.0);
  }

  double result(const std::shared_ptr<Element>& element, SerieType type, const Date& date) const {
    return element->getOutputSerie(type, 0)->getValue(date);
  }
};

class ScenarioRun : public ::testing::Test {
 protected:
  void SetUp() override {
    ScenarioManager::getInstance().clear();
    ScenarioManager::getInstance().addScenery(0, network.net.scenario);
  }
  void TearDown() override { ScenarioManager::getInstance().clear(); }

  bool execute(const std::function<bool(long, long)>& progress) {
    return ScenarioManager::getInstance().executeScenery(0, progress, nullptr);
  }

  TwoBasinNetwork network;
};

}  // namespace

TEST_F(ScenarioRun, TenYearsMonthlyGiveTheFlowsComputedByHand) {
  std::vector<std::pair<long, long>> calls;
  ASSERT_TRUE(execute([&](long percentage, long total) {
    calls.emplace_back(percentage, total);
    return true;
  }));
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getName(), "Cenário executado com sucesso!");
  ASSERT_EQ(calls.size(), 120u);
  EXPECT_EQ(calls.front(), std::make_pair(0L, 120L));  // truncate(1 * 100 / 120)
  EXPECT_EQ(calls[59], std::make_pair(50L, 120L));
  EXPECT_EQ(calls.back(), std::make_pair(100L, 120L));

  auto& n = network;
  // March 2004: basin 1 sends 13, loses 1.3; J1 gets 11.7 + 5 = 16.7; J2's share 60 % = 10.02 is
  // capped at 7; J3 takes 40 % = 6.68, and nothing redistributes the rest.
  const Date march(2004, 3, 1);
  EXPECT_NEAR(n.result(n.b1ToJ1, SerieType::inflow, march), 13.0, 1e-12);
  EXPECT_NEAR(n.result(n.b1ToJ1, SerieType::transitLoss, march), 1.3, 1e-12);
  EXPECT_NEAR(n.result(n.b1ToJ1, SerieType::outflow, march), 11.7, 1e-12);
  EXPECT_NEAR(n.result(n.j1, SerieType::inflow, march), 16.7, 1e-9);
  EXPECT_NEAR(n.result(n.j1, SerieType::outflow, march), 16.7, 1e-9);
  EXPECT_NEAR(n.result(n.toJ2, SerieType::inflow, march), 7.0, 1e-9);
  EXPECT_NEAR(n.result(n.j3, SerieType::outflow, march), 6.68, 1e-9);
  // January 2000: 11 - 1.1 + 5 = 14.9 through J1; 60 % = 8.94 capped at 7; 40 % = 5.96.
  const Date january(2000, 1, 1);
  EXPECT_NEAR(n.result(n.j2, SerieType::inflow, january), 7.0, 1e-9);
  EXPECT_NEAR(n.result(n.j3, SerieType::inflow, january), 5.96, 1e-9);

  for (const auto& element : n.net.scenario->getElements()) {
    for (const auto& serie : element->getVectorOfSeries(0)) {
      EXPECT_EQ(serie->getInterval(), n.net.scenario->getInterval());
    }
  }
  EXPECT_EQ(n.toJ3->getOutputSerie(SerieType::outflow, 0)->size(), 120u);
  EXPECT_EQ(n.net.scenario->getVectorOfLinksWithBurst().size(), 1u);
}

TEST_F(ScenarioRun, CancellingDropsEveryResult) {
  EXPECT_FALSE(execute([](long, long) { return false; }));
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getName(),
            "A execução do cenário foi cancelada!");
  for (const auto& element : network.net.scenario->getElements()) {
    EXPECT_FALSE(element->hasResults()) << element->getName();
  }
}

TEST_F(ScenarioRun, SecondRunAndCopyGiveIdenticalResults) {
  ASSERT_TRUE(execute(nullptr));
  std::vector<Serie::Values> first;
  for (const auto& element : network.net.scenario->getElements()) {
    for (const auto& serie : element->getVectorOfSeries(0)) first.push_back(serie->getMapOfJulianToValues());
  }
  auto check = [&first](const Scenario& scenario) {
    std::size_t i = 0;
    for (const auto& element : scenario.getElements()) {
      for (const auto& serie : element->getVectorOfSeries(0)) {
        ASSERT_LT(i, first.size());
        EXPECT_EQ(serie->getMapOfJulianToValues(), first[i++]) << element->getName();
      }
    }
    EXPECT_EQ(i, first.size());
  };
  ASSERT_TRUE(execute(nullptr));
  check(*network.net.scenario);

  std::shared_ptr<Scenario> copy = network.net.scenario->copy();
  ASSERT_TRUE(copy->run(nullptr));
  check(*copy);
  EXPECT_NE(copy->getElements()[0], network.net.scenario->getElements()[0]);
}

TEST_F(ScenarioRun, DisabledElementHasNoResults) {
  network.j3->setEnabled(false);
  ASSERT_TRUE(execute(nullptr));
  EXPECT_THROW_TEXT(network.j3->getOutputSerie(SerieType::inflow, 0), std::invalid_argument,
                    "Invalid index value!");
  EXPECT_TRUE(network.net.scenario->hasResults());
  EXPECT_NEAR(network.result(network.toJ3, SerieType::inflow, Date(2000, 1, 1)), 5.96, 1e-9);
}

TEST_F(ScenarioRun, FailingCheckKeepsEarlierResults) {
  ASSERT_TRUE(execute(nullptr));
  const double before = network.result(network.j3, SerieType::inflow, Date(2000, 1, 1));
  network.net.scenario->setSceneryCheck(std::make_shared<FailingCheck>(network.net.scenario));
  EXPECT_FALSE(execute(nullptr));
  EXPECT_EQ(network.net.scenario->getSceneryStatus().getName(),
            "Cenário não executado devido a existência algum erro de configuração.");
  EXPECT_EQ(network.result(network.j3, SerieType::inflow, Date(2000, 1, 1)), before);
}

TEST(ScenarioRunSpine, OnePeriodCallsBackWithAHundredPercent) {
  NetworkBuilder net(Interval(Date(2001, 6, 1), Date(2001, 6, 1), Vocabulary::of(Periodicity::monthly)));
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  net.link(a, b);
  std::vector<std::pair<long, long>> calls;
  ASSERT_TRUE(net.scenario->run([&](long p, long t) {
    calls.emplace_back(p, t);
    return true;
  }));
  EXPECT_EQ(calls, (std::vector<std::pair<long, long>>{{100, 1}}));
  // Without a source nothing flows, and the zeros are written.
  EXPECT_EQ(b->getOutputSerie(SerieType::inflow, 0)->getValue(Date(2001, 6, 1)), 0.0);
}

TEST(ScenarioRunSpine, AStoredLoopIsRefusedBeforeTheRun) {
  NetworkBuilder net(NetworkBuilder::monthly(2000, 2000));
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  auto c = net.node(ElementType::junction);
  net.link(a, b);
  net.link(b, c);
  net.link(c, a);
  EXPECT_FALSE(net.scenario->run(nullptr));
  EXPECT_EQ(net.scenario->getSceneryStatus().getId(), 0);
  const auto findings = net.scenario->getSceneryCheck()->getAllErrors();
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings[0].message, "Existe um loop na rede");
  EXPECT_FALSE(a->hasResults());
}

TEST(ExecutionMethods, FactoryAndProgressBar) {
  const Interval interval = NetworkBuilder::monthly(2000, 2000);
  auto method = ExecutionMethodFactoryByType::make(ExecutionType::continuous, interval);
  EXPECT_EQ(method->getExecutionType().getName(), "Contínuo");
  method->setZeroContribution(true);
  EXPECT_TRUE(method->copy()->getZeroContribution());
  EXPECT_THROW_TEXT(ExecutionMethodFactoryByType::make(ExecutionType::optimization, interval),
                    std::invalid_argument,
                    "ExecutionMethodFactoryByType::make(): invalid executionType");
  KOVACoreProgressBar bar(0, 3, [](long, long) { return false; });
  EXPECT_THROW_TEXT(bar.updateWithThrow(), KOVACoreProgressBar::ProgressCancelException,
                    "KovaCoreProgressBar canceled");
  KOVACoreProgressBar silent(0, 4, nullptr);
  EXPECT_TRUE(silent.update());
  EXPECT_EQ(silent.getPercentCurrentProgress(), 25.0);
}
