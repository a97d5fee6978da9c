#pragma once

#include <memory>
#include <vector>

#include "common/Point2D.h"
#include "core/Element.h"

class Link;

// A point of the network with its incoming and outgoing links, in the order they were added.
// Nodes own their links; links see their nodes weakly, so a network with cycles is still freed.
class Node : public Element {
 public:
  double getX() const { return position.x; }
  void setX(double x) { position.x = x; }
  double getY() const { return position.y; }
  void setY(double y) { position.y = y; }
  const Point2D& getPosition() const { return position; }

  const std::vector<std::shared_ptr<Link>>& getUpstreamLinks() const { return upstreamLinks; }
  const std::vector<std::shared_ptr<Link>>& getDownstreamLinks() const { return downstreamLinks; }
  void addUpstream(const std::shared_ptr<Link>& link);
  virtual void addDownstream(const std::shared_ptr<Link>& link);
  // Remove the link with the same id, if there is one.
  void removeUpstream(const std::shared_ptr<Link>& link);
  virtual void removeDownstream(const std::shared_ptr<Link>& link);

  // The enabled outgoing links, in order.
  std::vector<std::shared_ptr<Link>> getEnabledDownstreamLinks() const;
  // The first outgoing natural link (enabled or not / enabled only), or null.
  std::shared_ptr<Link> getFirstNaturalLink() const;
  std::shared_ptr<Link> getFirstEnabledNaturalLink() const;
  // Position of link among the outgoing links, by id. Throws std::invalid_argument
  // "Node::getDownstreamLinkIndex: invalid link" when it is not there.
  std::size_t getDownstreamLinkIndex(const std::shared_ptr<Link>& link) const;

  // Element::copy and the position; links are not copied (the caller rewires them).
  std::shared_ptr<Element> copy() const override;

 protected:
  // Replaces both link lists, for a reservoir undoing the inversions of a date.
  void setLinks(std::vector<std::shared_ptr<Link>> upstream,
                std::vector<std::shared_ptr<Link>> downstream);

  Node(const EnumElementType& elementType, SeriesContainerPtr inputSeries, const Point2D& position)
      : Element(elementType, std::move(inputSeries)), position(position) {}

 private:
  Point2D position;
  std::vector<std::shared_ptr<Link>> upstreamLinks;
  std::vector<std::shared_ptr<Link>> downstreamLinks;
};
