#include <gtest/gtest.h>

#include "core/LinkRuleSettings.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/OperationSystem.h"
#include "operation/SenseInfoManager.h"
#include "rules/ConstReleaseRule.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

constexpr double kJanuary = 31 * 0.0864;  // hm³ per m³/s over January

// Reservoirs A and B joined by a bidirectional canal A -> B that inverts while A is at or below
// 5 hm³ and B above 5 hm³. Each reservoir also drains to its own outlet by its river. B releases
// 3 m³/s by rule, half into its river and, when the canal is inverted, half into the canal by
// the canal's own row; A releases nothing. No inflow and no evaporation.
struct ReservoirPair {
  NetworkBuilder net{Interval(Date(2001, 1, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Reservoir> a, b;
  std::shared_ptr<Link> pair, outA, outB;

  ReservoirPair() {
    a = reservoir(4.0);
    b = reservoir(10.0);
    pair = net.link(a, b, 1000.0, ElementType::artificialLink);
    outA = net.link(a, net.node(ElementType::drain));
    outB = net.link(b, net.node(ElementType::drain));
    pair->setIsBidirectional(true);
    pair->configureSenseInfo({{5.0, 15.0}, {5.0, 15.0}, {{0, 1}, {0, 0}}});
    const auto id = [](const std::shared_ptr<Element>& e) { return double(e->getId()); };
    net.allocation(a, {{id(a), id(pair), id(outA)}, {10, 10, 0}});
    net.allocation(b, {{id(b), id(outB)}, {2, 1}, {10, 5}});
    Scenario::getSettings<LinkRuleSettings>(pair, net.scenario->getSettingsManager())
        ->setValues({1, 5});
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(3.0);
    Scenario::getSettings<ReservoirRuleSettings>(b, net.scenario->getSettingsManager())->setRule(rule);
  }

  std::shared_ptr<Reservoir> reservoir(double initVol) {
    auto r = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    ReservoirInfo& info = r->getReservoirInfo();
    info.cav = {{100, 0, 0}, {101, 2, 1}, {102, 5, 3}, {103, 9, 7}, {104, 14, 15}};
    info.minVol = 1.0;
    info.maxVol = 15.0;
    info.initVol = initVol;
    for (SerieType type : {SerieType::naturalIncrementalFlow, SerieType::evaporation,
                           SerieType::precipitation}) {
      r->getInputSerie(type)->fill(0.0);
    }
    return r;
  }

  double out(const std::shared_ptr<Element>& e, SerieType type, const Date& date) const {
    return e->getOutputSerie(type, 0)->getValue(date);
  }
};

}  // namespace

TEST(Bidirectional, SenseByVolumeBands) {
  ReservoirPair p;
  const Interval& interval = p.net.scenario->getInterval();
  const Date first = interval.getBegin();
  EXPECT_EQ(SenseInfoManager::getSenseAccordingToReservoirsVolume(p.pair, interval, first, 0), 1);
  // 5.0 sits on the boundary and so in the lower band: A low and B low keeps the sense.
  p.b->getReservoirInfo().initVol = 5.0;
  EXPECT_EQ(SenseInfoManager::getSenseAccordingToReservoirsVolume(p.pair, interval, first, 0), 0);
  // Above the top boundary counts as the last band.
  p.b->getReservoirInfo().initVol = 40.0;
  EXPECT_EQ(SenseInfoManager::getSenseAccordingToReservoirsVolume(p.pair, interval, first, 0), 1);
  p.pair->configureSenseInfo({});
  EXPECT_EQ(SenseInfoManager::getSenseAccordingToReservoirsVolume(p.pair, interval, first, 0), 0);
  EXPECT_THROW_TEXT(
      SenseInfoManager::getSenseAccordingToReservoirsVolume(p.outA, interval, first, 0),
      std::invalid_argument, "SenseInfoManager::getSenseAccordingToReservoirsVolume");
}

TEST(Bidirectional, LinkInvertsByStorageAndTheNetworkIsRestored) {
  ReservoirPair p;
  ASSERT_TRUE(p.net.scenario->run(nullptr));
  const Date jan(2001, 1, 1), feb(2001, 2, 1);
  // January: A holds 4 (low band), B 10 (high band): the canal runs B -> A and carries half of
  // B's 3 m³/s by its own row; the river takes the other half. Between the lines 2 and 10 each
  // takes (5 * 1 + 1 * 7) / 8 = 1.5.
  EXPECT_EQ(p.out(p.pair, SerieType::linkSense, jan), 1.0);
  EXPECT_NEAR(p.out(p.pair, SerieType::inflow, jan), 1.5, 1e-9);
  EXPECT_NEAR(p.out(p.outB, SerieType::inflow, jan), 1.5, 1e-9);
  EXPECT_NEAR(p.out(p.b, SerieType::finalVolume, jan), 10.0 - 3 * kJanuary, 1e-9);
  EXPECT_NEAR(p.out(p.a, SerieType::finalVolume, jan), 4.0 + 1.5 * kJanuary, 1e-9);
  // February: A is high and B low, the link keeps its sense and A releases nothing into it.
  EXPECT_EQ(p.out(p.pair, SerieType::linkSense, feb), 0.0);
  EXPECT_EQ(p.out(p.pair, SerieType::inflow, feb), 0.0);

  EXPECT_EQ(p.pair->getUpstream(), p.a);
  EXPECT_EQ(p.pair->getCurrentSense(), 0);
  EXPECT_EQ(p.a->getDownstreamLinks(), (std::vector<std::shared_ptr<Link>>{p.pair, p.outA}));
  EXPECT_TRUE(p.a->getUpstreamLinks().empty());
  EXPECT_EQ(p.b->getUpstreamLinks(), (std::vector<std::shared_ptr<Link>>{p.pair}));
  EXPECT_EQ(p.b->getDownstreamLinks(), (std::vector<std::shared_ptr<Link>>{p.outB}));
}

TEST(Bidirectional, InversionThatClosesALoopStopsTheRun) {
  ReservoirPair p;
  // A -> C -> B: once the pair runs B -> A, B -> A -> C -> B is a loop.
  auto c = p.net.node(ElementType::junction);
  p.net.link(p.a, c, 1000.0, ElementType::artificialLink);
  p.net.link(c, p.b);
  EXPECT_FALSE(p.net.scenario->run(nullptr));
  EXPECT_EQ(p.net.scenario->getSceneryStatus().getName(),
            "A execução do cenário foi interrompida devido a existência de loop na rede em alguma "
            "variação de trecho bidirecional.");
  EXPECT_FALSE(p.a->hasResults());
  EXPECT_EQ(p.pair->getUpstream(), p.a);
  EXPECT_EQ(p.net.scenario->getCurrentOperationSystem()->getIdsOfElementsInLoop().size(), 6u);
}

TEST(Bidirectional, OwnRowsFollowTheReservoirMatrix) {
  ReservoirPair p;
  auto settings =
      Scenario::getSettings<ReservoirRuleSettings>(p.b, p.net.scenario->getSettingsManager());
  settings->addAllocationLine();  // B now has three lines
  settings->updateBidirectionalUpstreamLinks(p.net.scenario);
  const auto& own = Scenario::getSettings<LinkRuleSettings>(p.pair, p.net.scenario->getSettingsManager());
  EXPECT_EQ(own->getValues(), (std::vector<double>{1, 5, 0}));
}
