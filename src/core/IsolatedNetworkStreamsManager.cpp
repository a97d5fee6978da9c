#include "core/IsolatedNetworkStreamsManager.h"

#include <algorithm>
#include <stdexcept>

#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "core/Reservoir.h"

namespace {

using Nodes = std::vector<std::shared_ptr<Node>>;

std::shared_ptr<Node> sourceOf(const std::shared_ptr<Link>& link) {
  std::shared_ptr<Node> node = link->getUpstream();
  if (!node) throw std::invalid_argument("IsolatedNetworkUtils::getIsolatedUpStreamElements");
  return node;
}

bool fedOnlyBy(const std::shared_ptr<Node>& node,
               const IsolatedNetworkStreamsManager::NodeIds& network) {
  const auto& upstream = node->getUpstreamLinks();
  return std::all_of(upstream.begin(), upstream.end(), [&](const std::shared_ptr<Link>& link) {
    return !IsolatedNetworkStreamsManager::canAddLink(link) ||
           network.count(link->getUpstream()->getId()) != 0;
  });
}

}  // namespace

bool IsolatedNetworkStreamsManager::isIsolatedReservoir(const std::shared_ptr<Element>& element) {
  const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element);
  return reservoir && reservoir->isEnabled() && reservoir->getReservoirInfo().isolated;
}

bool IsolatedNetworkStreamsManager::canAddNode(const std::shared_ptr<Node>& node,
                                               const NodeIds& taken) {
  return node->isEnabled() && !isIsolatedReservoir(node) && taken.count(node->getId()) == 0;
}

bool IsolatedNetworkStreamsManager::canAddLink(const std::shared_ptr<Link>& link) {
  const auto upstream = link->getUpstream();
  const auto downstream = link->getDownstream();
  return link->isEnabled() && upstream && downstream && upstream->isEnabled() &&
         downstream->isEnabled();
}

std::vector<std::shared_ptr<Node>> IsolatedNetworkStreamsManager::getUpStreamElements(
    const std::shared_ptr<Node>& node, const NodeIds& taken) {
  Nodes found;
  NodeIds seen = {node->getId()};
  Nodes pending = {node};
  while (!pending.empty()) {
    const std::shared_ptr<Node> current = pending.back();
    pending.pop_back();
    for (const auto& link : current->getUpstreamLinks()) {
      if (!canAddLink(link)) continue;
      const std::shared_ptr<Node> source = sourceOf(link);
      if (!canAddNode(source, taken) || !seen.insert(source->getId()).second) continue;
      found.push_back(source);
      pending.push_back(source);
    }
  }
  return found;
}

std::vector<std::shared_ptr<Node>> IsolatedNetworkStreamsManager::getDownStreamElements(
    const NodeIds& network, const Elements& elements, const NodeIds& taken) {
  NodeIds grown = network;
  Nodes found;
  for (bool added = true; added;) {
    added = false;
    for (const auto& node : ElementsFilter::filterByEnabledNodes(elements)) {
      if (grown.count(node->getId()) || !canAddNode(node, taken)) continue;
      const auto& upstream = node->getUpstreamLinks();
      const bool reached = std::any_of(upstream.begin(), upstream.end(), [&](const auto& link) {
        return canAddLink(link) && grown.count(link->getUpstream()->getId()) != 0;
      });
      if (!reached || !fedOnlyBy(node, grown)) continue;
      grown.insert(node->getId());
      found.push_back(node);
      added = true;
    }
  }
  return found;
}

std::shared_ptr<Node> IsolatedNetworkStreamsManager::getUpstreamIsolatedReservoirToNode(
    const std::shared_ptr<Node>& node) {
  NodeIds seen = {node->getId()};
  Nodes pending = {node};
  for (std::size_t next = 0; next < pending.size(); ++next) {
    if (isIsolatedReservoir(pending[next])) return pending[next];
    for (const auto& link : pending[next]->getUpstreamLinks()) {
      if (!canAddLink(link)) continue;
      const std::shared_ptr<Node> source = sourceOf(link);
      if (seen.insert(source->getId()).second) pending.push_back(source);
    }
  }
  return nullptr;
}

IsolatedNetworkStreamsManager::Split IsolatedNetworkStreamsManager::splitNetwork(
    const Elements& elements) {
  Split split;
  NodeIds taken;
  for (const auto& root : NetworkUtils::levelOrderLegacy(elements)) {
    if (!isIsolatedReservoir(root)) continue;
    const auto reservoir = std::static_pointer_cast<Node>(root);
    NodeIds network = {reservoir->getId()};
    for (const auto& node : getUpStreamElements(reservoir, taken)) network.insert(node->getId());
    for (const auto& node : getDownStreamElements(network, elements, taken)) {
      network.insert(node->getId());
    }
    taken.insert(network.begin(), network.end());
    split.push_back(network);
  }
  NodeIds general;
  for (const auto& node : ElementsFilter::filterByEnabledNodes(elements)) {
    if (!taken.count(node->getId())) general.insert(node->getId());
  }
  split.push_back(general);
  return split;
}
