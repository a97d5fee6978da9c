#include "core/NetworkUtils.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <deque>
#include <stack>
#include <utility>

#include "common/NumericalUtils.h"
#include "core/ElementsFilter.h"

namespace {

using Elements = NetworkUtils::Elements;

std::map<unsigned int, std::shared_ptr<Node>> enabledNodesById(const Elements& elements) {
  std::map<unsigned int, std::shared_ptr<Node>> result;
  for (const auto& node : ElementsFilter::filterByEnabledNodes(elements)) {
    result.emplace(node->getId(), node);
  }
  return result;
}

// Pushes each upstream link of node on order and its upstream node on pending.
void pushUpstream(const std::shared_ptr<Node>& node, std::deque<std::shared_ptr<Element>>& order,
                  std::deque<std::shared_ptr<Node>>& pending) {
  for (const auto& link : node->getUpstreamLinks()) {
    order.push_back(link);
    pending.push_back(link->getUpstream());
  }
}

template <typename Links, typename Keep>
double sumFlow(const Links& links, SerieType type, const Date& date, unsigned int windowIndex,
               Keep keep) {
  double sum = 0.0;
  for (const auto& link : links) {
    if (!link->isEnabled() || !keep(*link)) continue;
    const double value = link->getOutputSerie(type, windowIndex)->getValue(date);
    if (std::fabs(value) > 1e-6) sum += value;
  }
  return sum;
}

bool anyLink(const Link&) { return true; }

}  // namespace

Elements NetworkUtils::levelOrderLegacy(const Elements& elements) {
  const std::vector<std::shared_ptr<Node>> leaves =
      makeVecLeaves(ElementsFilter::filterByEnabledNodes(elements));
  std::deque<std::shared_ptr<Element>> order;
  std::deque<std::shared_ptr<Node>> pending;
  for (const auto& leaf : leaves) {
    order.push_back(leaf);
    pushUpstream(leaf, order, pending);
    while (!pending.empty()) {
      std::shared_ptr<Node> node = pending.back();
      pending.pop_back();
      order.push_back(node);
      pushUpstream(node, order, pending);
    }
  }
  std::map<unsigned int, bool> visited;
  Elements result;
  for (auto it = order.rbegin(); it != order.rend(); ++it) {
    const std::shared_ptr<Element>& element = *it;
    if (!visited.emplace(element->getId(), true).second) continue;
    if (element->isEnabled() && std::dynamic_pointer_cast<Node>(element)) result.push_back(element);
  }
  return result;
}

std::vector<std::shared_ptr<Node>> NetworkUtils::makeVecLeaves(
    const std::vector<std::shared_ptr<Node>>& nodes) {
  std::vector<std::shared_ptr<Node>> leaves;
  std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(leaves),
               [](const std::shared_ptr<Node>& node) {
                 return node->getEnabledDownstreamLinks().empty();
               });
  return leaves;
}

bool NetworkUtils::iterativeDFS(const Elements& elements,
                                std::map<unsigned int, unsigned int>& parents,
                                unsigned int& cycleStart) {
  std::map<unsigned int, Color> colors;
  for (const auto& entry : enabledNodesById(elements)) colors[entry.first] = Color::unvisited;
  for (const auto& node : ElementsFilter::filterByEnabledNodes(elements)) {
    if (colors[node->getId()] != Color::unvisited) continue;
    if (DFSiterativevisit(node->getId(), colors, elements, parents, cycleStart)) return true;
  }
  return false;
}

bool NetworkUtils::DFSiterativevisit(unsigned int startId, std::map<unsigned int, Color>& colors,
                                     const Elements& elements,
                                     std::map<unsigned int, unsigned int>& parents,
                                     unsigned int& cycleStart) {
  const std::map<unsigned int, std::shared_ptr<Node>> nodes = enabledNodesById(elements);
  // Each entry: a node and the index of the next enabled downstream link to follow.
  std::stack<std::pair<std::shared_ptr<Node>, int>> stack;
  stack.push({nodes.at(startId), 0});
  colors[startId] = Color::inProgress;
  while (!stack.empty()) {
    auto& [node, next] = stack.top();
    if (static_cast<std::size_t>(next) >= node->getEnabledDownstreamLinks().size()) {
      colors[node->getId()] = Color::finished;
      stack.pop();
      continue;
    }
    const unsigned int neighbour = nextNode(node, next++);
    auto found = nodes.find(neighbour);
    if (found == nodes.end()) continue;
    if (colors[neighbour] == Color::inProgress) {
      cycleStart = neighbour;
      parents[neighbour] = node->getId();
      return true;
    }
    if (colors[neighbour] == Color::unvisited) {
      parents[neighbour] = node->getId();
      colors[neighbour] = Color::inProgress;
      stack.push({found->second, 0});
    }
  }
  return false;
}

std::vector<unsigned int> NetworkUtils::findLoop(const Elements& elements) {
  std::map<unsigned int, unsigned int> parents;
  unsigned int cycleStart = 0;
  if (!iterativeDFS(elements, parents, cycleStart)) return {};
  return buildVectorOfCycle(elements, parents, cycleStart);
}

std::vector<unsigned int> NetworkUtils::buildVectorOfCycle(
    const Elements& elements, std::map<unsigned int, unsigned int>& parents,
    unsigned int cycleStart) {
  std::vector<unsigned int> nodeIds;
  unsigned int current = cycleStart;
  do {
    nodeIds.push_back(current);
    auto parent = parents.find(current);
    if (parent == parents.end()) break;
    current = parent->second;
    parents.erase(parent);
  } while (current != cycleStart);
  std::reverse(nodeIds.begin(), nodeIds.end());

  const std::map<unsigned int, std::shared_ptr<Node>> nodes = enabledNodesById(elements);
  std::vector<unsigned int> result;
  for (std::size_t i = 0; i < nodeIds.size(); ++i) {
    result.push_back(nodeIds[i]);
    const unsigned int following = nodeIds[(i + 1) % nodeIds.size()];
    auto node = nodes.find(nodeIds[i]);
    if (node == nodes.end()) continue;
    if (auto link = getLinkDown(node->second, following)) result.push_back(link->getId());
  }
  return result;
}

unsigned int NetworkUtils::nextNode(const std::shared_ptr<Node>& node, int index) {
  return node->getEnabledDownstreamLinks().at(static_cast<std::size_t>(index))->getDownstream()->getId();
}

std::shared_ptr<Link> NetworkUtils::getLinkDown(const std::shared_ptr<Node>& node,
                                                unsigned int downstreamId) {
  for (const auto& link : node->getEnabledDownstreamLinks()) {
    if (link->getDownstream()->getId() == downstreamId) return link;
  }
  return nullptr;
}

std::vector<std::shared_ptr<Node>> NetworkUtils::getAllDownstreamNodes(
    const std::shared_ptr<Node>& node, const std::set<ElementType>& types, bool onlyEnabled) {
  std::vector<std::shared_ptr<Node>> found;
  std::set<unsigned int> visited = {node->getId()};
  std::stack<std::shared_ptr<Node>> pending;
  pending.push(node);
  while (!pending.empty()) {
    const std::shared_ptr<Node> current = pending.top();
    pending.pop();
    const auto& links = onlyEnabled ? current->getEnabledDownstreamLinks()
                                    : current->getDownstreamLinks();
    for (auto it = links.rbegin(); it != links.rend(); ++it) {
      const std::shared_ptr<Node> next = (*it)->getDownstream();
      if (!next || (onlyEnabled && !next->isEnabled())) continue;
      if (!visited.insert(next->getId()).second) continue;
      pending.push(next);
    }
    if (current != node && types.count(current->getType()) != 0) found.push_back(current);
  }
  return found;
}

void NetworkUtils::checkDownAndUpInLinks(const std::shared_ptr<Node>& upstream,
                                         const std::shared_ptr<Node>& downstream,
                                         const std::vector<std::shared_ptr<Link>>& links) {
  for (const auto& link : links) {
    const auto up = link->getUpstream();
    const auto down = link->getDownstream();
    if ((up == upstream && down == downstream) || (up == downstream && down == upstream)) {
      throw RepeatedLinkException();
    }
  }
}

void NetworkUtils::checkInvalidBidirectionalLink(const std::shared_ptr<Node>& first,
                                                 const std::shared_ptr<Node>& second) {
  for (const auto& node : {first, second}) {
    const auto other = node == first ? second : first;
    for (const auto& link : node->getDownstreamLinks()) {
      if (link->getIsBidirectional() && link->getDownstream() == other) {
        throw InvalidBidirectionalLinkException();
      }
    }
  }
}

Point2D NetworkUtils::getPositionNear(const std::shared_ptr<Node>& node) {
  constexpr double kShift = 0.005;
  return {node->getX() + kShift, node->getY() - kShift};
}

void NetworkUtils::initializeSeed() {
  NumericalUtils::setRandomSeed(
      static_cast<unsigned int>(std::chrono::system_clock::now().time_since_epoch().count()));
}

double NetworkUtils::upStreamSumFlow(const std::shared_ptr<Node>& node, const Date& date,
                                     unsigned int windowIndex) {
  return sumFlow(node->getUpstreamLinks(), SerieType::outflow, date, windowIndex, anyLink);
}

double NetworkUtils::downStreamSumFlow(const std::shared_ptr<Node>& node, const Date& date,
                                       unsigned int windowIndex) {
  return sumFlow(node->getDownstreamLinks(), SerieType::inflow, date, windowIndex, anyLink);
}

double NetworkUtils::downStreamArtificialSumFlow(const std::shared_ptr<Node>& node,
                                                 const Date& date, unsigned int windowIndex) {
  return sumFlow(node->getDownstreamLinks(), SerieType::inflow, date, windowIndex,
                 [](const Link& link) { return link.getType() == ElementType::artificialLink; });
}
