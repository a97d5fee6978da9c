#pragma once

#include <memory>
#include <vector>

#include "core/Node.h"

// A node that consumes water. Part of what reaches it may return to the network: for each
// outgoing link, in the same order, the percentage of the inflow that returns through it.
class Demand : public Node {
 public:
  const std::vector<double>& getDemandReturnPercentages() const { return demandReturn; }
  // The return percentage of an outgoing link, found by its position. Throws
  // std::invalid_argument "Node::getDownstreamLinkIndex: invalid link" for a foreign link.
  double getDemandReturnPercentage(const std::shared_ptr<Link>& link) const;
  void setDemandReturnPercentage(const std::shared_ptr<Link>& link, double percentage);
  bool hasDemandReturn() const { return !demandReturn.empty(); }

  // Loaders read the percentages before the links exist: they park them here and move them into
  // place once the links are attached.
  void setDemandReturnPercentagesTemp(const std::vector<double>& percentages) {
    demandReturnTemp = percentages;
  }
  void flushDemandReturnPercentagesTemp();

  // A new outgoing link returns nothing until told otherwise.
  void addDownstream(const std::shared_ptr<Link>& link) override;
  // Removes the link and its percentage, keeping the others with their links.
  void removeDownstream(const std::shared_ptr<Link>& link) override;

  std::shared_ptr<Element> copy() const override;

 protected:
  Demand(ElementType type, const Point2D& position);

 private:
  std::vector<double> demandReturn;      // %
  std::vector<double> demandReturnTemp;  // %
};

class HumanDemand : public Demand {
 public:
  explicit HumanDemand(const Point2D& position) : Demand(ElementType::humanDemand, position) {}
};

class AnimalDemand : public Demand {
 public:
  explicit AnimalDemand(const Point2D& position) : Demand(ElementType::animalDemand, position) {}
};

class IndustrialDemand : public Demand {
 public:
  explicit IndustrialDemand(const Point2D& position)
      : Demand(ElementType::industrialDemand, position) {}
};

class AgricultureDemand : public Demand {
 public:
  explicit AgricultureDemand(const Point2D& position)
      : Demand(ElementType::irrigationDemand, position) {}
};

// The outlet of a network: before each run it is given an unlimited demand so that it takes
// whatever reaches it.
class DrainDemand : public Demand {
 public:
  explicit DrainDemand(const Point2D& position) : Demand(ElementType::drain, position) {}

  bool getIsVirtual() const { return isVirtual; }
  void setIsVirtual(bool value) { isVirtual = value; }
  std::shared_ptr<Element> copy() const override;

 private:
  bool isVirtual = false;
};
