#pragma once

#include <map>
#include <memory>
#include <set>
#include <vector>

#include "core/Element.h"
#include "core/Link.h"
#include "core/Node.h"

// The walks that split a network into isolated networks. The enabled reservoirs flagged isolated
// are taken upstream first; each one's network is the reservoir, every enabled node upstream of
// it that no earlier network holds (the walk stops at flagged reservoirs), and then every node
// downstream of those whose water comes only from the network. What no isolated network holds is
// the general network. So a network receives water only from networks taken before it, through
// the links that cross its border, and the order of the networks is an order in which each can be
// run once those before it have.
class IsolatedNetworkStreamsManager {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;
  using NodeIds = std::set<unsigned int>;
  // The node ids of each network: one per isolated reservoir, in level order, and the general
  // network last (empty when the isolated networks hold every node).
  using Split = std::vector<NodeIds>;

  static Split splitNetwork(const Elements& elements);
  // The enabled nodes upstream of node that can join its network (canAddNode).
  static std::vector<std::shared_ptr<Node>> getUpStreamElements(const std::shared_ptr<Node>& node,
                                                                const NodeIds& taken);
  // The enabled nodes downstream of network whose every source is in network and that can join
  // it (canAddNode), until no more can.
  static std::vector<std::shared_ptr<Node>> getDownStreamElements(const NodeIds& network,
                                                                  const Elements& elements,
                                                                  const NodeIds& taken);
  // The first isolated reservoir met going upstream from node (node itself included), or null.
  static std::shared_ptr<Node> getUpstreamIsolatedReservoirToNode(
      const std::shared_ptr<Node>& node);
  // An enabled node that is not an isolated reservoir and that no other network holds.
  static bool canAddNode(const std::shared_ptr<Node>& node, const NodeIds& taken);
  // An enabled link between two enabled nodes: the links that water crosses.
  static bool canAddLink(const std::shared_ptr<Link>& link);
  // True for an enabled reservoir flagged isolated.
  static bool isIsolatedReservoir(const std::shared_ptr<Element>& element);
};
