#include "core/Demand.h"

#include "core/SeriesContainers.h"
#include "vocabulary/Vocabulary.h"

Demand::Demand(ElementType type, const Point2D& position)
    : Node(Vocabulary::of(type), std::make_shared<DemandSeriesInput>(), position) {}

double Demand::getDemandReturnPercentage(const std::shared_ptr<Link>& link) const {
  return demandReturn.at(getDownstreamLinkIndex(link));
}

void Demand::setDemandReturnPercentage(const std::shared_ptr<Link>& link, double percentage) {
  demandReturn.at(getDownstreamLinkIndex(link)) = percentage;
}

void Demand::flushDemandReturnPercentagesTemp() {
  demandReturn = demandReturnTemp;
  demandReturnTemp.clear();
}

void Demand::addDownstream(const std::shared_ptr<Link>& link) {
  Node::addDownstream(link);
  demandReturn.push_back(0.0);
}

void Demand::removeDownstream(const std::shared_ptr<Link>& link) {
  const std::size_t index = getDownstreamLinkIndex(link);
  Node::removeDownstream(link);
  demandReturn.erase(demandReturn.begin() + static_cast<std::ptrdiff_t>(index));
}

std::shared_ptr<Element> Demand::copy() const {
  std::shared_ptr<Element> element = Node::copy();
  std::static_pointer_cast<Demand>(element)->demandReturn = demandReturn;
  return element;
}

std::shared_ptr<Element> DrainDemand::copy() const {
  std::shared_ptr<Element> element = Demand::copy();
  std::static_pointer_cast<DrainDemand>(element)->isVirtual = isVirtual;
  return element;
}
