#include <gtest/gtest.h>

#include "PriorityNetworkBuilder.h"
#include "common/PeriodWalker.h"
#include "core/IsolatedNetworkUtils.h"
#include "core/Junction.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"

namespace {

// Two reservoirs meet at a junction that serves a demand (priority 2) and passes the rest to the
// mouth (a drain, priority 99); the upper reservoir, flagged isolated, also serves a demand of its
// own (priority 1) that only it feeds. Inflows vary by month so that the demands are short in
// some months only.
class IsolatedPriorityNetwork : public ::testing::Test {
 protected:
  IsolatedPriorityNetwork() : net(12) {
    upper = net.reservoir(10, 200, 60, 99);
    lower = net.reservoir(5, 100, 20, 99);
    PeriodWalker::forEach(net.interval(), [&](const Date& date) {
      const double wet = date.getMonth() <= 4 ? 1.0 : 0.2;
      upper->getInputSerie(SerieType::naturalIncrementalFlow)
          ->setValue(date, net.m3s(date, 25 * wet));
      lower->getInputSerie(SerieType::naturalIncrementalFlow)
          ->setValue(date, net.m3s(date, 8 * wet));
    });
    own = net.demand(12, 1);
    auto junction = net.node(ElementType::junction);
    shared = net.demand(30, 2, ElementType::irrigationDemand);
    net.link(upper, own, 0.0, 9999.0, ElementType::artificialLink);
    toJunction = net.link(upper, junction, 2.0);
    net.link(lower, junction);
    net.link(junction, shared, 0.0, 9999.0, ElementType::artificialLink);
    net.link(junction, net.node(ElementType::drain));
    IsolatedNetworkUtils::setReservoirIsolated(*net.scenario, upper, true);
  }
  ~IsolatedPriorityNetwork() override { ScenarioManager::getInstance().clear(); }

  std::shared_ptr<Scenario> wholeRun() const {
    auto whole = net.scenario->copy();
    EXPECT_TRUE(whole->run(nullptr));
    return whole;
  }
  bool runIsolated() {
    ScenarioManager::getInstance().addScenery(0, net.scenario);
    return net.scenario->runIsolated(nullptr);
  }
  // Both runs, element by element and date by date, within the solver's tolerance.
  void expectSameResults(const Scenario& whole) const {
    for (const auto& element : whole.getElements()) {
      const auto want = element->getVectorOfSeries(0);
      const auto got = net.scenario->getElement(element->getId())->getVectorOfSeries(0);
      ASSERT_EQ(want.size(), got.size());
      for (std::size_t i = 0; i < want.size(); ++i) {
        PeriodWalker::forEach(net.interval(), [&](const Date& date) {
          EXPECT_NEAR(got[i]->getValue(date), want[i]->getValue(date), 1e-7)
              << element->getName() << " " << want[i]->getName() << " " << date.toString("%m/%Y");
        });
      }
    }
  }
  double total(const Scenario& scenario, const std::shared_ptr<Element>& element,
               SerieType type) const {
    double sum = 0.0;
    const auto& serie = scenario.getElement(element->getId())->getOutputSerie(type, 0);
    PeriodWalker::forEach(net.interval(), [&](const Date& date) { sum += serie->getValue(date); });
    return sum;
  }

  PriorityNetworkBuilder net;
  std::shared_ptr<Reservoir> upper, lower;
  std::shared_ptr<Demand> own, shared;
  std::shared_ptr<Link> toJunction;
};

}  // namespace

// Neither reservoir keeps anything above its minimum and the mouth takes what is left, so each
// month has one optimum: the upper reservoir sends all it does not give its own demand, whoever
// asks for it downstream. The piece of the upper reservoir, ending at a virtual drain, sends the
// same, and the general piece receives it through the union link.
TEST_F(IsolatedPriorityNetwork, WithUniqueOptimaThePiecesGiveTheWholeRun) {
  const auto whole = wholeRun();
  ASSERT_GT(total(*whole, shared, SerieType::supplyShortageVolume), 0.0);
  ASSERT_TRUE(runIsolated());
  expectSameResults(*whole);
  const auto& data =
      ScenarioManager::getInstance().getSceneryIsolatedDataByID(net.scenario->getId());
  ASSERT_EQ(data.getVectorOfSceneryStructure().size(), 2u);
  PeriodWalker::forEach(net.interval(), [&](const Date& date) {
    EXPECT_NEAR(data.getUnionFlow(toJunction->getId(), date),
                whole->getElement(toJunction->getId())
                    ->getOutputSerie(SerieType::inflow, 0)
                    ->getValue(date),
                1e-9);
  });
}

// The documented difference: a piece does not see the demands beyond its union links, whose
// virtual drains come at priority 99. With the upper reservoir keeping 50 % of its capacity at
// priority 5, the whole run releases for the shared demand (priority 2) first and empties the
// reservoir by May; run by pieces, the upper reservoir fills its goal before the virtual drain
// gets anything, so the shared demand misses more, the reservoir ends fuller, and the water kept
// serves the reservoir's own demand through the dry months.
TEST_F(IsolatedPriorityNetwork, APieceServesItsOwnPrioritiesBeforeThoseDownstream) {
  upper->getInputSerie(SerieType::targetVolume)->fill(0.5);
  net.settings(upper)->setPriority(5);
  const auto whole = wholeRun();
  ASSERT_TRUE(runIsolated());
  EXPECT_GT(total(*net.scenario, shared, SerieType::supplyShortageVolume),
            total(*whole, shared, SerieType::supplyShortageVolume) + 1.0);
  EXPECT_GT(total(*net.scenario, upper, SerieType::finalVolume),
            total(*whole, upper, SerieType::finalVolume) + 1.0);
  EXPECT_GT(total(*whole, own, SerieType::supplyShortageVolume), 1.0);
  EXPECT_EQ(total(*net.scenario, own, SerieType::supplyShortageVolume), 0.0);
}

TEST(IsolatedNetworkFlow, AUnionJunctionFeedsExactlyOneLink) {
  PriorityNetworkBuilder net(1);
  auto junction = std::static_pointer_cast<Junction>(net.node(ElementType::junction));
  junction->setIsUnion(true);
  net.link(junction, net.demand(5, 1));
  net.link(junction, net.demand(5, 2));
  ScenarioManager::getInstance().addScenery(0, net.scenario);
  EXPECT_THROW_TEXT(net.scenario->runIsolated(nullptr), std::runtime_error,
                    "IsolatedNetworkFlow::getJunctionSubjectValue: invalid virtual junction");
  ScenarioManager::getInstance().clear();
}
