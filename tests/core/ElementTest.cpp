#include <gtest/gtest.h>

#include "core/ElementFactory.h"
#include "core/ElementSets.h"
#include "core/LinkFactory.h"
#include "core/LinkVectorOfOutputSeriesFactory.h"
#include "core/NodeFactory.h"
#include "core/Properties.h"
#include "core/ResultFactory.h"
#include "support/ExpectThrow.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::shared_ptr<Link> naturalLink(const std::shared_ptr<Node>& up,
                                  const std::shared_ptr<Node>& down, unsigned int id) {
  auto link = LinkFactory<NaturalLink>::make(up, down, "L" + std::to_string(id),
                                             Vocabulary::of(LinkAddonType::none));
  link->setId(id);
  return link;
}

void giveResults(const std::shared_ptr<Element>& element) {
  element->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, element->getType(), ScenarioType::ruleSimulator}, 1));
}

}  // namespace

TEST(ElementFactory, MakesEveryConcreteTypeAndRefusesTheRest) {
  for (ElementType type : ElementSets::allElements()) {
    SCOPED_TRACE(Vocabulary::of(type).getName());
    std::shared_ptr<Element> element = ElementFactory::make(type);
    EXPECT_EQ(element->getElementType(), Vocabulary::of(type));
    EXPECT_TRUE(element->isEnabled());
    EXPECT_FALSE(element->hasResults());
    EXPECT_FALSE(element->getVectorOfInputSeries().empty());
  }
  for (ElementType type : {ElementType::genericDemand, ElementType::genericLink}) {
    EXPECT_THROW_TEXT(ElementFactory::make(type), std::invalid_argument,
                      "ElementFactory::make(): invalid elementType");
  }
  auto reservoir = std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  ASSERT_EQ(reservoir->getInstitutionalIDs().size(), 1u);
  EXPECT_EQ(reservoir->getInstitutionalIDs()[0].owner, "Talvera");
  EXPECT_EQ(reservoir->getReservoirInfo().maxRelease, 99999.0);
  EXPECT_THROW_TEXT(PropertiesFactory::make(ElementType::basin), std::invalid_argument,
                    "PropertiesFactory::make(): invalid elementType");
  EXPECT_NE(std::dynamic_pointer_cast<DemandProperties>(PropertiesFactory::make(ElementType::drain)),
            nullptr);
}

TEST(Element, NamesLoseQuotesAndBackslashes) {
  auto junction = ElementFactory::make(ElementType::junction);
  junction->setName("a'b\"c\\d");
  EXPECT_EQ(junction->getName(), "abcd");
}

TEST(Element, SeriesAccessFailures) {
  auto demand = ElementFactory::make(ElementType::humanDemand);
  EXPECT_THROW_TEXT(demand->getOutputSerie(SerieType::inflow, 0), std::invalid_argument,
                    "Invalid index value!");
  EXPECT_THROW_TEXT(demand->getInputSerie(SerieType::linkLimit), std::invalid_argument,
                    "Invalid serie type!");
  EXPECT_THROW_TEXT(demand->getVectorOfSeries(0), std::out_of_range, "Invalid window index");
  giveResults(demand);
  EXPECT_THROW_TEXT(demand->getOutputSerie(SerieType::finalVolume, 0), std::invalid_argument,
                    "Invalid serie type!");
  EXPECT_THROW_TEXT(demand->getOutputSerie(SerieType::inflow, 1), std::invalid_argument,
                    "Invalid index value!");
  EXPECT_EQ(demand->getVectorOfSeries(0).size(), 15u);
}

// A container finds a series by the number of its kind: kinds between, beyond and below those
// it holds are refused alike, and a copy finds its own series, not those of the original.
TEST(Element, ContainersFindEachKindAndCopiesFindTheirOwn) {
  auto reservoir = ElementFactory::make(ElementType::reservoir);
  const Interval months(Date(2000, 1, 1), Date(2000, 3, 1), Vocabulary::of(Periodicity::monthly));
  reservoir->getInputSerie(SerieType::evaporation)->fill(5.0, months);
  for (const SerieType absent : {SerieType::demand, SerieType::linkLimit,
                                 static_cast<SerieType>(-1), static_cast<SerieType>(1000)}) {
    EXPECT_THROW_TEXT(reservoir->getInputSerie(absent), std::invalid_argument,
                      "Invalid serie type!");
  }
  EXPECT_EQ(reservoir->getInputSerie(SerieType::evaporation)->getType(), SerieType::evaporation);
  EXPECT_EQ(reservoir->getInputSerie(SerieType::targetVolume)->getType(), SerieType::targetVolume);

  const auto copy = reservoir->copy();
  copy->getInputSerie(SerieType::evaporation)->setValue(Date(2000, 2, 1), 7.0);
  EXPECT_EQ(copy->getInputSerie(SerieType::evaporation)->getValue(Date(2000, 2, 1)), 7.0);
  EXPECT_EQ(reservoir->getInputSerie(SerieType::evaporation)->getValue(Date(2000, 2, 1)), 5.0);

  giveResults(reservoir);
  const auto results = reservoir->getOutputSeries().front();
  const auto resultsCopy = results->copy();
  resultsCopy->getSerie(SerieType::finalVolume)->setValue(Date(2000, 1, 1), 40.0);
  EXPECT_EQ(results->getSerie(SerieType::finalVolume)->size(), 0u);
  results->copyFrom(resultsCopy);
  EXPECT_EQ(results->getSerie(SerieType::finalVolume)->getValue(Date(2000, 1, 1)), 40.0);
  EXPECT_NE(results->getSerie(SerieType::finalVolume),
            resultsCopy->getSerie(SerieType::finalVolume));
}

TEST(Element, DisablingDropsResultsForGood) {
  auto basin = ElementFactory::make(ElementType::basin);
  giveResults(basin);
  basin->setEnabled(false);
  EXPECT_FALSE(basin->hasResults());
  basin->setEnabled(true);
  EXPECT_THROW_TEXT(basin->getOutputSerie(SerieType::outflow, 0), std::invalid_argument,
                    "Invalid index value!");
}

TEST(Element, CopiesKeepDataButNotResults) {
  auto demand = NodeFactory::makeIndustrialDemand({3.0, 4.0});
  auto drain = NodeFactory::makeDrainDemand({});
  demand->setName("Fábrica");
  demand->setId(7);
  demand->setDatabaseId(70);
  auto link = naturalLink(demand, drain, 8);
  demand->setDemandReturnPercentage(link, 25.0);
  demand->getInputSerie(SerieType::demand)->setValue(Date(2000, 1, 1), 1.5);
  giveResults(demand);

  auto copy = std::static_pointer_cast<Demand>(demand->copy());
  EXPECT_EQ(copy->getName(), "Fábrica");
  EXPECT_EQ(copy->getId(), 7u);
  EXPECT_EQ(copy->getDatabaseId(), 70u);
  EXPECT_EQ(copy->getX(), 3.0);
  EXPECT_EQ(copy->getDemandReturnPercentages(), std::vector<double>{25.0});
  EXPECT_TRUE(copy->getDownstreamLinks().empty());
  EXPECT_FALSE(copy->hasResults());
  copy->getInputSerie(SerieType::demand)->setValue(Date(2000, 1, 1), 9.0);
  EXPECT_EQ(demand->getInputSerie(SerieType::demand)->getValue(Date(2000, 1, 1)), 1.5);

  copy->copyResultsSeriesFrom(demand);
  EXPECT_TRUE(copy->hasResults());
  EXPECT_NE(copy->getOutputSerie(SerieType::inflow, 0), demand->getOutputSerie(SerieType::inflow, 0));
  EXPECT_THROW_TEXT(copy->copyResultsSeriesFrom(drain), std::invalid_argument,
                    "Element::copyResultsSeriesFrom: invalid elementType");
}

TEST(Demand, ReturnSharesFollowTheirLinks) {
  auto demand = NodeFactory::makeHumanDemand({});
  std::vector<std::shared_ptr<Link>> links;
  for (unsigned int id = 1; id <= 3; ++id) {
    links.push_back(naturalLink(demand, NodeFactory::makeJunction({}), id));
    demand->setDemandReturnPercentage(links.back(), 10.0 * id);
  }
  demand->removeDownstream(links[1]);
  EXPECT_EQ(demand->getDemandReturnPercentages(), (std::vector<double>{10.0, 30.0}));
  EXPECT_EQ(demand->getDemandReturnPercentage(links[2]), 30.0);
  EXPECT_THROW_TEXT(demand->getDemandReturnPercentage(links[1]), std::invalid_argument,
                    "Node::getDownstreamLinkIndex: invalid link");
}

TEST(Link, InvertAndBidirectionality) {
  auto a = NodeFactory::makeReservoir({}, {});
  auto b = NodeFactory::makeReservoir({}, {});
  auto junction = NodeFactory::makeJunction({});
  auto link = naturalLink(a, b, 1);
  link->invert();
  EXPECT_EQ(link->getUpstream(), b);
  EXPECT_EQ(link->getCurrentSense(), 1);
  link->invert();
  EXPECT_EQ(link->getUpstream(), a);
  EXPECT_EQ(link->getDownstream(), b);
  EXPECT_EQ(link->getCurrentSense(), 0);
  link->setIsBidirectional(true);
  EXPECT_TRUE(link->getIsBidirectional());
  auto toJunction = naturalLink(a, junction, 2);
  EXPECT_THROW_TEXT(toJunction->setIsBidirectional(true), std::invalid_argument,
                    "Link::setIsBidirectional: invalid birectional link");
  EXPECT_EQ(a->getFirstNaturalLink(), link);
  EXPECT_EQ(a->getDownstreamLinkIndex(toJunction), 1u);
}

TEST(Link, ShownSeriesDependOnSenseAndAddon) {
  auto up = NodeFactory::makeReservoir({}, {});
  auto down = NodeFactory::makeReservoir({}, {});
  auto link = naturalLink(up, down, 1);
  giveResults(link);
  // Inflow, loss, outflow: the sense only for a bidirectional link, the cost only for pumping.
  EXPECT_EQ(link->getVectorOfSeries(0).size(), 3u);
  link->setIsBidirectional(true);
  EXPECT_EQ(link->getVectorOfSeries(0).size(), 4u);
  EXPECT_EQ(LinkVectorOfOutputSeriesFactory::make(link->Element::getVectorOfSeries(0),
                                                  LinkAddonType::pumping)
                .size(),
            5u);
  EXPECT_THROW_TEXT(
      LinkVectorOfOutputSeriesFactory::make({}, static_cast<LinkAddonType>(7)),
      std::invalid_argument, "LinkVectorOfOutputSeriesFactory::make:: invalid linkAddon type");
  EXPECT_THROW_TEXT(LinkAddonFactory::make(static_cast<LinkAddonType>(7)), std::invalid_argument,
                    "LinkAddonFactory::make(): invalid linkAddonType");
}

TEST(Link, BurstWhenInflowReachesTheLimit) {
  auto up = NodeFactory::makeJunction({});
  auto down = NodeFactory::makeJunction({});
  auto link = naturalLink(up, down, 1);
  const Interval interval(Date(2000, 1, 1), Date(2000, 3, 1), Vocabulary::of(Periodicity::monthly));
  giveResults(link);
  link->setIntervalSeries(interval);
  link->getInputSerie(SerieType::linkLimit)->fill(5.0);
  link->getOutputSerie(SerieType::inflow, 0)->fill(4.0);
  EXPECT_FALSE(link->linkBurst(0));
  link->getOutputSerie(SerieType::inflow, 0)->setValue(Date(2000, 2, 1), 5.0 - 5e-7);
  EXPECT_TRUE(link->linkBurst(0));
  EXPECT_THROW_TEXT(link->linkBurst(1), std::invalid_argument, "Invalid index value!");
}
