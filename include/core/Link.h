#pragma once

#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/LinkAddon.h"
#include "core/SenseInfo.h"

class Node;

// A directed connection from an upstream node to a downstream node. A link does not own its
// nodes. It always carries an add-on ("Nenhum" by default).
class Link : public Element {
 public:
  std::shared_ptr<Node> getUpstream() const { return upstream.lock(); }
  std::shared_ptr<Node> getDownstream() const { return downstream.lock(); }
  void setUpstream(const std::shared_ptr<Node>& node) { upstream = node; }
  void setDownstream(const std::shared_ptr<Node>& node) { downstream = node; }

  const std::shared_ptr<LinkAddon>& getLinkAddon() const { return linkAddon; }
  void setLinkAddon(const std::shared_ptr<LinkAddon>& addon) { linkAddon = addon; }

  bool getIsUnion() const { return isUnion; }
  void setIsUnion(bool value) { isUnion = value; }
  bool getIsBidirectional() const { return isBidirectional; }
  // Only a link between two reservoirs may be bidirectional; otherwise throws
  // std::invalid_argument "Link::setIsBidirectional: invalid birectional link".
  void setIsBidirectional(bool value);

  // Swaps the ends and toggles the current sense.
  void invert();
  int getCurrentSense() const { return currentSense; }
  const SenseInfo& getSenseInfo() const { return senseInfo; }
  void configureSenseInfo(const SenseInfo& info) { senseInfo = info; }

  // True when, on some date of the window's results, the inflow reached the link's limit within
  // 1e-6. Throws std::invalid_argument "Invalid index value!" for a window without results.
  bool linkBurst(unsigned int windowIndex) const;

  // The results of the window without "Sentido do trecho" unless the link is bidirectional, and
  // without the series its add-on does not produce.
  std::vector<std::shared_ptr<Serie>> getVectorOfSeries(unsigned int windowIndex) const override;

  std::shared_ptr<Element> copy() const override;

 protected:
  explicit Link(ElementType type);

 private:
  std::weak_ptr<Node> upstream;
  std::weak_ptr<Node> downstream;
  std::shared_ptr<LinkAddon> linkAddon;
  bool isUnion = false;
  bool isBidirectional = false;
  int currentSense = 0;
  SenseInfo senseInfo;
};

// A river reach: the only kind of link that takes a reservoir's spill.
class NaturalLink : public Link {
 public:
  NaturalLink() : Link(ElementType::naturalLink) {}

  // Whether the reach gathers lateral inflow along its course; kept with the project.
  bool getLateralContribution() const { return lateralContribution; }
  void setLateralContribution(bool value) { lateralContribution = value; }
  std::shared_ptr<Element> copy() const override {
    std::shared_ptr<Element> element = Link::copy();
    std::static_pointer_cast<NaturalLink>(element)->lateralContribution = lateralContribution;
    return element;
  }

 private:
  bool lateralContribution = false;
};

// A canal, pipe or pumping line.
class ArtificialLink : public Link {
 public:
  ArtificialLink() : Link(ElementType::artificialLink) {}
};
