#include "core/ElementFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/Link.h"
#include "core/NodeFactory.h"

std::shared_ptr<Element> ElementFactory::make(ElementType type) {
  using E = ElementType;
  static const std::map<ElementType, std::function<std::shared_ptr<Element>()>> makers = {
      {E::reservoir, makeReservoir},
      {E::humanDemand, makeHumanDemand},
      {E::animalDemand, makeAnimalDemand},
      {E::industrialDemand, makeIndustrialDemand},
      {E::irrigationDemand, makeAgricultureDemand},
      {E::drain, makeDrainDemand},
      {E::junction, makeJunction},
      {E::basin, makeBasin},
      {E::naturalLink, makeNaturalLink},
      {E::artificialLink, makeArtificialLink},
  };
  auto it = makers.find(type);
  if (it == makers.end()) throw std::invalid_argument("ElementFactory::make(): invalid elementType");
  return it->second();
}

std::shared_ptr<Element> ElementFactory::makeReservoir() {
  return NodeFactory::makeReservoir(Point2D{}, {InstitutionalID{0, "Talvera"}});
}

std::shared_ptr<Element> ElementFactory::makeHumanDemand() {
  return NodeFactory::makeHumanDemand(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeAnimalDemand() {
  return NodeFactory::makeAnimalDemand(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeIndustrialDemand() {
  return NodeFactory::makeIndustrialDemand(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeAgricultureDemand() {
  return NodeFactory::makeAgricultureDemand(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeDrainDemand() {
  return NodeFactory::makeDrainDemand(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeJunction() {
  return NodeFactory::makeJunction(Point2D{});
}

std::shared_ptr<Element> ElementFactory::makeBasin() { return NodeFactory::makeBasin(Point2D{}); }

std::shared_ptr<Element> ElementFactory::makeNaturalLink() {
  return std::make_shared<NaturalLink>();
}

std::shared_ptr<Element> ElementFactory::makeArtificialLink() {
  return std::make_shared<ArtificialLink>();
}
