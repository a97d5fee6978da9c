#include <gtest/gtest.h>

#include <cmath>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

std::vector<unsigned int> ids(const NetworkUtils::Elements& elements) {
  std::vector<unsigned int> result;
  for (const auto& element : elements) result.push_back(element->getId());
  return result;
}

class LevelOrder : public ::testing::Test {
 protected:
  NetworkBuilder net{NetworkBuilder::monthly(2000, 2000)};
  std::vector<unsigned int> order() {
    return ids(NetworkUtils::levelOrderLegacy(net.scenario->getElements()));
  }
};

}  // namespace

TEST_F(LevelOrder, ChainGoesFromSourceToMouth) {
  auto a = net.node(ElementType::basin);       // 0
  auto b = net.node(ElementType::junction);    // 1
  auto c = net.node(ElementType::drain);       // 2
  net.link(b, c);                              // 3
  net.link(a, b);                              // 4
  EXPECT_EQ(order(), (std::vector<unsigned int>{0, 1, 2}));
}

TEST_F(LevelOrder, ConfluenceComesAfterAllItsAncestors) {
  auto a = net.node(ElementType::junction);  // 0
  auto b = net.node(ElementType::junction);  // 1
  auto c = net.node(ElementType::junction);  // 2
  auto d = net.node(ElementType::junction);  // 3
  net.link(a, b);
  net.link(a, c);
  net.link(b, d);
  net.link(c, d);
  // From d the walk stacks b and c, climbs c to a, then b to a again; the order d, c, a, b, a
  // read backwards and without repeats is a, b, c, d.
  EXPECT_EQ(order(), (std::vector<unsigned int>{0, 1, 2, 3}));
}

TEST_F(LevelOrder, DisabledNodeIsLeftOutButItsAncestorsStay) {
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  auto c = net.node(ElementType::junction);
  net.link(a, b);
  net.link(b, c);
  b->setEnabled(false);
  EXPECT_EQ(order(), (std::vector<unsigned int>{0, 2}));
}

TEST_F(LevelOrder, IsolatedNodesComeInReverseOrderAndNoElementsGiveNothing) {
  EXPECT_TRUE(order().empty());
  net.node(ElementType::junction);
  net.node(ElementType::basin);
  net.node(ElementType::drain);
  EXPECT_EQ(order(), (std::vector<unsigned int>{2, 1, 0}));
}

TEST_F(LevelOrder, LoopOfThreeIsFoundWithItsLinks) {
  auto a = net.node(ElementType::junction);  // 0
  auto b = net.node(ElementType::junction);  // 1
  auto c = net.node(ElementType::junction);  // 2
  net.link(a, b);                            // 3
  net.link(b, c);                            // 4
  EXPECT_FALSE(net.scenario->hasLoop());
  EXPECT_TRUE(net.scenario->getIdsOfElementsInLoop().empty());
  net.link(c, a);                            // 5
  EXPECT_TRUE(net.scenario->hasLoop());
  // The search from 0 closes the loop at 0; the walk back through the parents gives 0, 2, 1,
  // reversed to 1, 2, 0, each followed by its link to the next.
  EXPECT_EQ(net.scenario->getIdsOfElementsInLoop(),
            (std::vector<unsigned int>{1, 4, 2, 5, 0, 3}));
}

TEST_F(LevelOrder, FlowSumsSkipDisabledLinks) {
  auto a = net.node(ElementType::junction);
  auto b = net.node(ElementType::junction);
  auto j = net.node(ElementType::junction);
  auto l1 = net.link(a, j);
  auto l2 = net.link(b, j, 1000.0, ElementType::artificialLink);
  net.scenario->createResults();
  const Date date(2000, 1, 1);
  l1->getOutputSerie(SerieType::outflow, 0)->setValue(date, 2.5);
  l2->getOutputSerie(SerieType::outflow, 0)->setValue(date, 1.0);
  l1->getOutputSerie(SerieType::inflow, 0)->setValue(date, 3.0);
  l2->getOutputSerie(SerieType::inflow, 0)->setValue(date, 4.0);
  EXPECT_DOUBLE_EQ(NetworkUtils::upStreamSumFlow(j, date, 0), 3.5);
  EXPECT_DOUBLE_EQ(NetworkUtils::downStreamSumFlow(b, date, 0), 4.0);
  EXPECT_DOUBLE_EQ(NetworkUtils::downStreamArtificialSumFlow(a, date, 0), 0.0);
  l2->setEnabled(false);
  EXPECT_DOUBLE_EQ(NetworkUtils::upStreamSumFlow(j, date, 0), 2.5);
}

TEST_F(LevelOrder, DownstreamSearchAndLinkChecks) {
  auto r1 = net.node(ElementType::reservoir);
  auto j = net.node(ElementType::junction);
  auto d1 = net.node(ElementType::humanDemand);
  auto r2 = net.node(ElementType::reservoir);
  auto d2 = net.node(ElementType::animalDemand);
  auto drain = net.node(ElementType::drain);
  net.link(r1, j);
  net.link(j, d1);
  net.link(j, r2);
  auto toD2 = net.link(r2, d2);
  net.link(d1, drain);
  const std::set<ElementType> demands = {ElementType::humanDemand, ElementType::animalDemand};
  auto found = NetworkUtils::getAllDownstreamNodes(r1, demands, true);
  EXPECT_EQ(ids(NetworkUtils::Elements(found.begin(), found.end())),
            (std::vector<unsigned int>{d1->getId(), d2->getId()}));
  toD2->setEnabled(false);
  EXPECT_EQ(NetworkUtils::getAllDownstreamNodes(r1, demands, true).size(), 1u);
  EXPECT_EQ(NetworkUtils::getAllDownstreamNodes(r1, demands, false).size(), 2u);
  // The start is never among the finds, even of a type asked for.
  EXPECT_EQ(NetworkUtils::getAllDownstreamNodes(r1, ElementSets::reservoir(), true).size(), 1u);

  const auto links = ElementsFilter::filterByLinks(net.scenario->getElements());
  EXPECT_THROW_TEXT(NetworkUtils::checkDownAndUpInLinks(d1, j, links),
                    NetworkUtils::RepeatedLinkException,
                    "There is already a link with this upstream and downstream");
  NetworkUtils::checkDownAndUpInLinks(r2, d1, links);
  auto r3 = net.node(ElementType::reservoir);
  net.link(r2, r3)->setIsBidirectional(true);
  EXPECT_THROW_TEXT(NetworkUtils::checkInvalidBidirectionalLink(r3, r2),
                    NetworkUtils::InvalidBidirectionalLinkException, "Invalid bidirectional link");
  NetworkUtils::checkInvalidBidirectionalLink(r1, r3);
  r1->setX(-44.0);
  const Point2D near = NetworkUtils::getPositionNear(r1);
  EXPECT_NE(near.x, -44.0);
  EXPECT_LT(std::abs(near.x + 44.0), 0.1);
}
