#pragma once

#include <exception>
#include <map>
#include <set>
#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Point2D.h"
#include "core/Element.h"
#include "core/Link.h"
#include "core/Node.h"

// Graph algorithms over a scenario's flat vector of elements.
class NetworkUtils {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  enum class Color { unvisited, inProgress, finished };

  class LoopException : public std::exception {
   public:
    const char* what() const noexcept override { return "The network has loop"; }
  };
  class RepeatedLinkException : public std::exception {
   public:
    const char* what() const noexcept override {
      return "There is already a link with this upstream and downstream";
    }
  };
  class InvalidBidirectionalLinkException : public std::exception {
   public:
    const char* what() const noexcept override { return "Invalid bidirectional link"; }
  };

  // The enabled nodes in visiting order: every node after all of its ancestors. The walk starts
  // at the mouths of the network and climbs depth first; it must only be given a network
  // without loops, on which it would not end.
  static Elements levelOrderLegacy(const Elements& elements);
  // The nodes without an enabled downstream link.
  static std::vector<std::shared_ptr<Node>> makeVecLeaves(const std::vector<std::shared_ptr<Node>>& nodes);

  // True when the enabled nodes and links form a loop; parents and cycleStart then describe it.
  static bool iterativeDFS(const Elements& elements, std::map<unsigned int, unsigned int>& parents,
                           unsigned int& cycleStart);
  // One depth-first search from startId with an explicit stack, since networks can be deep.
  static bool DFSiterativevisit(unsigned int startId, std::map<unsigned int, Color>& colors,
                                const Elements& elements,
                                std::map<unsigned int, unsigned int>& parents,
                                unsigned int& cycleStart);
  // The ids along a loop of the enabled network (nodes and the links joining them), or an empty
  // vector when there is none.
  static std::vector<unsigned int> findLoop(const Elements& elements);
  // The ids of the nodes on the loop and of the links that join them, in order along the loop.
  static std::vector<unsigned int> buildVectorOfCycle(const Elements& elements,
                                                      std::map<unsigned int, unsigned int>& parents,
                                                      unsigned int cycleStart);
  // The id of the node at the far end of the index-th enabled downstream link.
  static unsigned int nextNode(const std::shared_ptr<Node>& node, int index);
  // The enabled link from node to the node with downstreamId, or null.
  static std::shared_ptr<Link> getLinkDown(const std::shared_ptr<Node>& node,
                                           unsigned int downstreamId);

  // The nodes of the given types reached going down from node (node itself excluded), in the order
  // a depth-first walk meets them, each once. With onlyEnabled the walk follows enabled links to
  // enabled nodes only.
  static std::vector<std::shared_ptr<Node>> getAllDownstreamNodes(
      const std::shared_ptr<Node>& node, const std::set<ElementType>& types, bool onlyEnabled);
  // Throws RepeatedLinkException when one of links already joins the two nodes, either way.
  static void checkDownAndUpInLinks(const std::shared_ptr<Node>& upstream,
                                    const std::shared_ptr<Node>& downstream,
                                    const std::vector<std::shared_ptr<Link>>& links);
  // Throws InvalidBidirectionalLinkException when a bidirectional link already joins the two
  // nodes: such a pair admits no second link.
  static void checkInvalidBidirectionalLink(const std::shared_ptr<Node>& first,
                                            const std::shared_ptr<Node>& second);
  // A position beside node for a new element, in the map's units (degrees).
  static Point2D getPositionNear(const std::shared_ptr<Node>& node);
  // Seeds the system's random numbers from the clock.
  static void initializeSeed();

  // Sum of "Vazão efluente" of the enabled upstream links at date, m³/s; zeros are skipped.
  static double upStreamSumFlow(const std::shared_ptr<Node>& node, const Date& date,
                                unsigned int windowIndex);
  // Sum of "Vazão afluente" of the enabled downstream links at date, m³/s.
  static double downStreamSumFlow(const std::shared_ptr<Node>& node, const Date& date,
                                  unsigned int windowIndex);
  // As downStreamSumFlow, over artificial links only.
  static double downStreamArtificialSumFlow(const std::shared_ptr<Node>& node, const Date& date,
                                            unsigned int windowIndex);
};
