#include <gtest/gtest.h>

#include <set>
#include <string>

#include "checks/IsolatedNetworkChecks.h"
#include "core/Demand.h"
#include "core/ElementsFilter.h"
#include "core/IsolatedNetworkStreamsManager.h"
#include "core/IsolatedNetworkUtils.h"
#include "core/Junction.h"
#include "core/SceneryIsolatedData.h"
#include "operation/ExecutionWindowed.h"
#include "scenario/IsolatedNetworkSceneryManager.h"
#include "scenario/ScenarioManager.h"
#include "support/ExpectThrow.h"
#include "support/RealisticNetwork.h"

namespace {

const char* const kBidirectionalRefusal =
    "Não é possível executar no modo rede isolada com a existência trecho bidirecional na rede!";

// Every result series of every element of expected, value for value, in actual's element of the
// same id.
void expectSameResults(const Scenario& expected, const Scenario& actual) {
  std::size_t compared = 0;
  for (const auto& element : expected.getElements()) {
    if (!element->isEnabled()) continue;
    const auto& other = actual.getElement(element->getId());
    ASSERT_TRUE(other->hasResults()) << element->getName();
    const auto want = element->getVectorOfSeries(0);
    const auto got = other->getVectorOfSeries(0);
    ASSERT_EQ(want.size(), got.size()) << element->getName();
    for (std::size_t i = 0; i < want.size(); ++i) {
      ASSERT_EQ(want[i]->getMapOfJulianToValues(), got[i]->getMapOfJulianToValues())
          << element->getName() << " " << want[i]->getName();
      compared += want[i]->size();
    }
  }
  EXPECT_GT(compared, 0u);
}

std::set<unsigned int> idsOf(const std::vector<std::shared_ptr<Link>>& links) {
  std::set<unsigned int> ids;
  for (const auto& link : links) ids.insert(link->getId());
  return ids;
}

std::shared_ptr<Link> linkInto(const std::shared_ptr<Element>& from, ElementType type) {
  for (const auto& link : std::static_pointer_cast<Node>(from)->getDownstreamLinks()) {
    if (link->getDownstream()->getType() == type) return link;
  }
  return nullptr;
}

// The São Francisco test network (forty years, nine rule kinds) with its reservoirs by role.
class IsolatedRuleNetwork : public ::testing::Test {
 protected:
  IsolatedRuleNetwork()
      : network(
            Interval(Date(1931, 1, 1), Date(1970, 12, 1), Vocabulary::of(Periodicity::monthly))),
        scenario(network.net.scenario) {}
  ~IsolatedRuleNetwork() override { ScenarioManager::getInstance().clear(); }

  std::shared_ptr<Reservoir> retiro() const { return network.reservoirs[0]; }
  std::shared_ptr<Reservoir> tresMarias() const { return network.reservoirs[1]; }
  std::shared_ptr<Reservoir> queimado() const { return network.reservoirs[2]; }
  std::shared_ptr<Reservoir> sobradinho() const { return network.reservoirs[3]; }
  std::shared_ptr<Reservoir> middle() const { return network.reservoirs[7]; }
  std::shared_ptr<Reservoir> lower() const { return network.reservoirs[8]; }
  std::shared_ptr<Element> industry() const {
    return ElementsFilter::filterByType(scenario->getElements(), {ElementType::industrialDemand})
        .front();
  }

  void isolate(const std::shared_ptr<Reservoir>& reservoir) {
    IsolatedNetworkUtils::setReservoirIsolated(*scenario, reservoir, true);
  }
  // The scenario run as a whole, on a copy taken now.
  std::shared_ptr<Scenario> wholeRun() const {
    auto whole = scenario->copy();
    EXPECT_TRUE(whole->run(nullptr));
    return whole;
  }
  bool runIsolated(const Scenario::Progress& progress = nullptr) {
    ScenarioManager& manager = ScenarioManager::getInstance();
    manager.addScenery(manager.getNumberOfSceneries(), scenario);
    return scenario->runIsolated(progress);
  }
  const SceneryIsolatedData& isolatedData() const {
    return ScenarioManager::getInstance().getSceneryIsolatedDataByID(scenario->getId());
  }

  RealisticNetwork network;
  std::shared_ptr<RuleScenario> scenario;
};

}  // namespace

TEST_F(IsolatedRuleNetwork, SplitsAtIsolatedReservoirsThroughUnionLinks) {
  isolate(queimado());
  isolate(lower());
  const std::set<unsigned int> unionLinks = {linkInto(queimado(), ElementType::junction)->getId(),
                                             linkInto(lower(), ElementType::junction)->getId(),
                                             linkInto(industry(), ElementType::junction)->getId()};
  EXPECT_EQ(idsOf(scenario->getUnionLinks()), unionLinks);
  for (const auto& link : ElementsFilter::filterByLinks(scenario->getElements())) {
    EXPECT_EQ(link->getIsUnion(), unionLinks.count(link->getId()) == 1) << link->getName();
  }

  const auto pieces = IsolatedNetworkSceneryManager::produceIsolatedSceneries(*scenario);
  ASSERT_EQ(pieces.size(), 3u);
  EXPECT_EQ(
      std::set<std::string>({pieces[0]->getName(), pieces[1]->getName()}),
      std::set<std::string>({"Teste - " + queimado()->getName(), "Teste - " + lower()->getName()}));
  EXPECT_EQ(pieces[2]->getName(), "Teste-general");
  const auto& lowerPiece =
      pieces[0]->getName() == "Teste - " + lower()->getName() ? pieces[0] : pieces[1];
  // Upstream of the reservoir, and downstream what only it feeds; the confluence stays outside.
  for (const auto& inside : {middle()->getId(), industry()->getId(), lower()->getId()}) {
    EXPECT_NO_THROW(lowerPiece->getElement(inside));
  }
  EXPECT_THROW(lowerPiece->getElement(sobradinho()->getId()), std::invalid_argument);

  const auto& general = pieces[2];
  std::set<unsigned int> entering;
  for (const auto& node :
       ElementsFilter::filterByType(general->getElements(), {ElementType::junction})) {
    const auto junction = std::static_pointer_cast<Junction>(node);
    if (!junction->getIsUnion()) continue;
    EXPECT_GE(junction->getId(), scenario->getMaxElementId());
    EXPECT_TRUE(junction->getUpstreamLinks().empty());
    ASSERT_EQ(junction->getDownstreamLinks().size(), 1u);
    entering.insert(junction->getDownstreamLinks().front()->getId());
  }
  EXPECT_EQ(entering, unionLinks);
  EXPECT_THROW(general->getElement(queimado()->getId()), std::invalid_argument);

  std::size_t drains = 0;
  for (const auto& node :
       ElementsFilter::filterByType(lowerPiece->getElements(), {ElementType::drain})) {
    const auto drain = std::static_pointer_cast<DrainDemand>(node);
    EXPECT_TRUE(drain->getIsVirtual());
    EXPECT_GE(drain->getId(), scenario->getMaxElementId());
    ++drains;
  }
  EXPECT_EQ(drains, 2u);  // the reservoir's own way to the confluence and the industry's return

  EXPECT_EQ(IsolatedNetworkStreamsManager::getUpstreamIsolatedReservoirToNode(
                std::static_pointer_cast<Node>(industry())),
            lower());
  EXPECT_EQ(IsolatedNetworkStreamsManager::getUpstreamIsolatedReservoirToNode(tresMarias()),
            nullptr);
}

TEST_F(IsolatedRuleNetwork, PieceByPieceGivesExactlyTheWholeRun) {
  isolate(queimado());
  isolate(lower());
  const auto whole = wholeRun();
  ASSERT_TRUE(runIsolated());
  EXPECT_EQ(scenario->getSceneryStatus().getName(), "Cenário executado com sucesso!");
  expectSameResults(*whole, *scenario);

  ASSERT_EQ(isolatedData().getVectorOfSceneryStructure().size(), 3u);
  const auto handedOver = linkInto(queimado(), ElementType::junction);
  EXPECT_EQ(isolatedData().getSerieOfUnionLinkID(handedOver->getId())->getMapOfJulianToValues(),
            whole->getElement(handedOver->getId())
                ->getOutputSerie(SerieType::inflow, 0)
                ->getMapOfJulianToValues());
  // A virtual drain takes whatever arrives: it asks for 99,999 m³/s on every date.
  const auto& firstPiece = isolatedData().getVectorOfSceneryStructure().front();
  for (const auto& drain :
       ElementsFilter::filterByType(firstPiece->getElements(), {ElementType::drain})) {
    for (const auto& entry : drain->getInputSerie(SerieType::demand)->getMapOfJulianToValues()) {
      ASSERT_EQ(entry.second, 99999.0);
    }
  }
}

TEST_F(IsolatedRuleNetwork, WithoutIsolatedReservoirsTheGeneralPieceIsTheWholeRun) {
  const auto whole = wholeRun();
  ASSERT_TRUE(runIsolated());
  const auto& pieces = isolatedData().getVectorOfSceneryStructure();
  ASSERT_EQ(pieces.size(), 1u);
  EXPECT_EQ(pieces.front()->getName(), "Teste-general");
  EXPECT_TRUE(scenario->getUnionLinks().empty());
  expectSameResults(*whole, *scenario);
}

TEST_F(IsolatedRuleNetwork, CancellingBetweenPiecesKeepsThePiecesAlreadyRun) {
  isolate(lower());
  const auto whole = wholeRun();
  // Two pieces: the bar stands at 50 % once the first has run.
  EXPECT_FALSE(runIsolated([](long percent, long) { return percent < 50; }));
  EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::cancelled);
  EXPECT_EQ(isolatedData().getVectorOfSceneryStructure().size(), 1u);
  for (const auto& kept : {lower(), middle()}) {
    EXPECT_EQ(kept->getOutputSerie(SerieType::finalVolume, 0)->getMapOfJulianToValues(),
              whole->getElement(kept->getId())
                  ->getOutputSerie(SerieType::finalVolume, 0)
                  ->getMapOfJulianToValues());
  }
  const auto& notRun = sobradinho()->getOutputSerie(SerieType::finalVolume, 0);
  EXPECT_EQ(notRun->getValue(scenario->getInterval().getBegin()), Serie::kEmptyValue);
}

TEST_F(IsolatedRuleNetwork, RefusalsNameWhatKeepsTheRunFromPieces) {
  const auto refusal = [&] {
    EXPECT_FALSE(scenario->runIsolated(nullptr));
    EXPECT_EQ(scenario->getSceneryStatus().getType(), SceneryStatus::configurationError);
    EXPECT_FALSE(scenario->hasResults());
    return scenario->getSceneryStatus().getName();
  };
  ScenarioManager::getInstance().addScenery(0, scenario);

  // Três Marias, fed only by Retiro Baixo, joins its network; its rule reads Sobradinho, which
  // stays in the general one.
  isolate(retiro());
  EXPECT_EQ(refusal(), "A regra do reservatório \"" + tresMarias()->getName() +
                           "\" depende do reservatório \"" + sobradinho()->getName() +
                           "\", que está em outra rede isolada.");
  IsolatedNetworkUtils::setReservoirIsolated(*scenario, retiro(), false);

  scenario->setExecutionMethod(std::make_shared<ExecutionWindowed>());
  EXPECT_EQ(refusal(),
            "Não é possível executar no modo rede isolada com o método de execução em janelas!");
  scenario->setExecutionMethod(std::make_shared<ExecutionContinuous>());

  linkInto(retiro(), ElementType::reservoir)->setIsBidirectional(true);
  EXPECT_EQ(refusal(), kBidirectionalRefusal);
  EXPECT_TRUE(isolatedData().getVectorOfSceneryStructure().empty());
}

TEST(IsolatedNetworkChecks, AReservoirWithoutWayDownstreamLosesItsFlag) {
  NetworkBuilder net(NetworkBuilder::monthly(2001, 2001));
  auto upstream = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
  auto terminal = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
  auto junction = net.node(ElementType::junction);
  net.link(upstream, terminal);
  IsolatedNetworkUtils::setReservoirIsolated(*net.scenario, upstream, true);
  IsolatedNetworkUtils::setReservoirIsolated(*net.scenario, terminal, true);

  const std::string noWayOut = "O reservatório isolado \"" + terminal->getName() +
                               "\" não tem trecho a jusante que una sua rede ao restante da rede.";
  EXPECT_EQ(IsolatedNetworkChecks::findArrangementErrors(*net.scenario),
            IsolatedNetworkChecks::Findings({noWayOut}));
  EXPECT_EQ(IsolatedNetworkChecks::checkInsertionOfNewIsolatedReservoir(junction),
            IsolatedNetworkChecks::Findings({"O elemento \"" + junction->getName() +
                                             "\" não é um reservatório habilitado e não pode ser "
                                             "isolado."}));
  IsolatedNetworkChecks::Findings failures;
  EXPECT_FALSE(IsolatedNetworkChecks::checkNetworkArrangementAndIsolate(*net.scenario, failures));
  EXPECT_EQ(failures, IsolatedNetworkChecks::Findings({noWayOut}));
  EXPECT_FALSE(terminal->getReservoirInfo().isolated);
  EXPECT_TRUE(upstream->getReservoirInfo().isolated);
  // The link between the two crossed the border of the terminal's network; it no longer does.
  EXPECT_TRUE(net.scenario->getUnionLinks().empty());
  EXPECT_TRUE(IsolatedNetworkChecks::checkExistenceOfIsolatedReservoirInScenery(*net.scenario));
  EXPECT_THROW_TEXT(
      IsolatedNetworkSceneryManager::getSceneryFromIsolatedNetwork(*net.scenario, terminal),
      std::invalid_argument,
      "IsolatedNetworkManager::getSceneryFromIsolatedNetwork: Reservoir is not isolated");
}

TEST(SceneryIsolatedData, UnknownLinksAndUnwrittenDatesAreRefused) {
  NetworkBuilder net(NetworkBuilder::monthly(2001, 2001));
  auto link = net.link(net.node(ElementType::junction), net.node(ElementType::drain));
  SceneryIsolatedData data;
  data.initialize({link}, net.scenario->getInterval());
  const Date january(2001, 1, 1);
  const char* const invalid = "SceneryIsolatedData::getSerieOfUnionLink: invalid unionID";
  EXPECT_THROW_TEXT(data.getUnionFlow(link->getId(), january), std::invalid_argument, invalid);
  data.getSerieOfUnionLinkID(link->getId())->setValue(january, 12.5);
  const SceneryIsolatedData shared = data;
  EXPECT_EQ(shared.getUnionFlow(link->getId(), january), 12.5);
  EXPECT_THROW_TEXT(data.getSerieOfUnionLinkID(link->getId() + 1), std::invalid_argument, invalid);

  ScenarioManager& manager = ScenarioManager::getInstance();
  manager.clear();
  EXPECT_THROW_TEXT(manager.getSceneryIsolatedDataByID(7), std::invalid_argument,
                    "IsolatedNetworkManager::getSceneryIsolatedDataByID: invalid unionID");
  EXPECT_THROW_TEXT(manager.initializeSceneryIsolatedData(7), std::invalid_argument,
                    "IsolatedNetworkManager::initializeSceneryIsolatedData: invalid unionID");
}
