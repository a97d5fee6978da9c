#include "scenario/IsolatedNetworkSceneryManager.h"

#include <stdexcept>

#include "checks/IsolatedNetworkChecks.h"
#include "core/Demand.h"
#include "core/ElementsFilter.h"
#include "core/ExecutionMethod.h"
#include "core/IsolatedNetworkStreamsManager.h"
#include "core/IsolatedNetworkUnionLinkManager.h"
#include "core/IsolatedNetworkUtils.h"
#include "core/Junction.h"
#include "core/KOVACoreProgressBar.h"
#include "core/NetworkUtils.h"
#include "core/NodeFactory.h"
#include "operation/NetworkFlow.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Links = std::vector<std::shared_ptr<Link>>;

Enum<SceneryStatus> refused(const std::string& text) {
  return Enum<SceneryStatus>(SceneryStatus::configurationError, text);
}

const char* const kBidirectionalRefusal =
    "Não é possível executar no modo rede isolada com a existência trecho bidirecional na rede!";

// Moves the source of an incoming link from the node outside the piece to a new union junction.
void startAtUnionJunction(Scenario& piece, const std::shared_ptr<Link>& link) {
  auto junction = NodeFactory::makeJunction(NetworkUtils::getPositionNear(link->getDownstream()));
  junction->setIsUnion(true);
  junction->setName("União " + link->getName());
  piece.addElement(junction, false, ScenarioManager::getInstance().makeCountVirtualElementId());
  link->setUpstream(junction);
  junction->Node::addDownstream(link);
  piece.posAddElement(link, false);
}

// Moves the end of an outgoing link from the node outside the piece to a new virtual drain.
void endAtVirtualDrain(Scenario& piece, const std::shared_ptr<Link>& link) {
  auto drain = NodeFactory::makeDrainDemand(NetworkUtils::getPositionNear(link->getUpstream()));
  drain->setIsVirtual(true);
  drain->setName("Dreno " + link->getName());
  piece.addElement(drain, false, ScenarioManager::getInstance().makeCountVirtualElementId());
  link->setDownstream(drain);
  drain->addUpstream(link);
}

// Removes from piece every element that is neither a node of network, nor a link touching one
// that water crosses, nor virtual (at or above firstVirtualId), links first so that they leave
// their nodes' lists. The plain removal of the base class keeps the allocation matrices of the
// piece's nodes whole: their shares count every column, those of disabled links too.
void removeOutside(Scenario& piece, const IsolatedNetworkSceneryManager::NodeIds& network,
                   const Links& kept, unsigned int firstVirtualId) {
  std::set<unsigned int> keep(network);
  for (const auto& link : kept) keep.insert(link->getId());
  const auto outside = [&](const std::shared_ptr<Element>& element) {
    return element->getId() < firstVirtualId && keep.count(element->getId()) == 0;
  };
  for (const auto& link : ElementsFilter::filterByLinks(piece.getElements())) {
    if (outside(link)) piece.Scenario::removeElement(link->getId());
  }
  for (const auto& node : ElementsFilter::filterByNodes(piece.getElements())) {
    if (outside(node)) piece.Scenario::removeElement(node->getId());
  }
}

std::string pieceName(const Scenario& scenario, const std::shared_ptr<Element>& reservoir) {
  return scenario.getName() + " - " + reservoir->getName();
}

std::string generalName(const Scenario& scenario) { return scenario.getName() + "-general"; }

}  // namespace

IsolatedNetworkSceneryManager::Pieces IsolatedNetworkSceneryManager::produceIsolatedSceneries(
    Scenario& scenario) {
  IsolatedNetworkUtils::markUnionLinks(scenario);
  ScenarioManager::getInstance().setCountVirtualElementId(scenario.getMaxElementId());
  // The split takes the isolated reservoirs in the order of the roots, the general network last.
  const auto split = IsolatedNetworkStreamsManager::splitNetwork(scenario.getElements());
  const auto roots = getVectorOfIsolatedNetworkRootReservoirs(scenario);
  Pieces pieces;
  for (std::size_t i = 0; i < roots.size(); ++i) {
    pieces.push_back(makePiece(scenario, split[i], pieceName(scenario, roots[i])));
  }
  if (!split.back().empty()) {
    pieces.push_back(makePiece(scenario, split.back(), generalName(scenario)));
  }
  return pieces;
}

std::shared_ptr<Scenario> IsolatedNetworkSceneryManager::getSceneryFromIsolatedNetwork(
    const Scenario& scenario, const std::shared_ptr<Element>& reservoir) {
  if (!IsolatedNetworkUtils::isIsolatedElement(reservoir)) {
    throw std::invalid_argument(
        "IsolatedNetworkManager::getSceneryFromIsolatedNetwork: Reservoir is not isolated");
  }
  return makePiece(scenario, getElementsThatBelongToIsolatedNetwork(scenario, reservoir),
                   pieceName(scenario, reservoir));
}

std::shared_ptr<Scenario> IsolatedNetworkSceneryManager::getSceneryFromGeneralNetwork(
    const Scenario& scenario) {
  return makePiece(scenario, getIsolatedNetworkGeneralElements(scenario), generalName(scenario));
}

std::vector<std::shared_ptr<Element>>
IsolatedNetworkSceneryManager::getVectorOfIsolatedNetworkRootReservoirs(const Scenario& scenario) {
  return IsolatedNetworkUtils::getStackOfReservoirsWithIsolatedFlagTrue(scenario);
}

IsolatedNetworkSceneryManager::NodeIds
IsolatedNetworkSceneryManager::getElementsThatBelongToIsolatedNetwork(
    const Scenario& scenario, const std::shared_ptr<Element>& reservoir) {
  for (const auto& network : IsolatedNetworkStreamsManager::splitNetwork(scenario.getElements())) {
    if (network.count(reservoir->getId()) && IsolatedNetworkUtils::isIsolatedElement(reservoir)) {
      return network;
    }
  }
  return {};
}

IsolatedNetworkSceneryManager::NodeIds
IsolatedNetworkSceneryManager::getIsolatedNetworkGeneralElements(const Scenario& scenario) {
  return IsolatedNetworkStreamsManager::splitNetwork(scenario.getElements()).back();
}

std::shared_ptr<Scenario> IsolatedNetworkSceneryManager::makePiece(const Scenario& scenario,
                                                                   const NodeIds& network,
                                                                   const std::string& name) {
  std::shared_ptr<Scenario> piece = scenario.copy();
  piece->setName(name);
  createdVirtualElementsInIsolatedScenery(scenario, *piece, network);
  return piece;
}

void IsolatedNetworkSceneryManager::createdVirtualElementsInIsolatedScenery(
    const Scenario& source, Scenario& piece, const NodeIds& network) {
  const Links links = ElementsFilter::filterByLinks(piece.getElements());
  const Links entries =
      IsolatedNetworkUnionLinkManager::getIsolatedNetworkEntryPoints(network, links);
  const Links exits = IsolatedNetworkUnionLinkManager::getIsolatedNetworkOutPoints(network, links);
  Links kept;
  for (const auto& link : links) {
    if (!IsolatedNetworkStreamsManager::canAddLink(link)) continue;
    if (network.count(link->getUpstream()->getId()) ||
        network.count(link->getDownstream()->getId())) {
      kept.push_back(link);
    }
  }
  for (const auto& link : entries) startAtUnionJunction(piece, link);
  for (const auto& link : exits) endAtVirtualDrain(piece, link);
  removeOutside(piece, network, kept, source.getMaxElementId());
  piece.resolveRuleReferences();
}

Enum<SceneryStatus> IsolatedNetworkSceneryManager::runIsolated(Scenario& scenario,
                                                               const Progress& progress) {
  ScenarioManager& manager = ScenarioManager::getInstance();
  manager.addSceneryIsolatedData(scenario.getId(), SceneryIsolatedData());
  if (scenario.hasBidirectionalLink()) return refused(kBidirectionalRefusal);
  const IsolatedNetworkChecks::Findings findings =
      IsolatedNetworkChecks::findArrangementErrors(scenario);
  if (!findings.empty()) return refused(findings.front());
  const Pieces pieces = produceIsolatedSceneries(scenario);
  manager.initializeSceneryIsolatedData(scenario.getId());
  SceneryIsolatedData& data = manager.getSceneryIsolatedDataByID(scenario.getId());
  scenario.clearResultSeries();
  scenario.createResults();
  KOVACoreProgressBar bar(0, static_cast<unsigned int>(pieces.size()), progress);
  for (const auto& piece : pieces) {
    piece->preRun();
    if (piece->executeSceneryCheck() == 2) {
      data.addSceneryStructure(piece);
      return Vocabulary::of(SceneryStatus::configurationError);
    }
    ExecutionMethod::configureLinkAddonPumping(
        ElementsFilter::filterByEnabledLinks(piece->getElements()));
    piece->createResults();
    const auto operation = piece->getIsolatedOperationSystem(scenario.getId());
    try {
      const auto poll = [&bar](long, long) { return bar.poll(); };
      if (!piece->getExecutionMethod()->run(piece->getInterval(), operation, poll)) {
        return Vocabulary::of(SceneryStatus::cancelled);
      }
    } catch (const NetworkFlow::NetflowOptimalException&) {
      data.addSceneryStructure(piece);
      return Vocabulary::of(SceneryStatus::configurationError);
    }
    scenario.copyResultsFromIsolatedScenery(piece);
    data.addSceneryStructure(piece);
    if (!bar.update()) return Vocabulary::of(SceneryStatus::cancelled);
  }
  return Vocabulary::of(SceneryStatus::success);
}
