#pragma once

#include <memory>

#include "core/Element.h"

// Makes a network element of a concrete type, at position (0, 0) for nodes and unattached for
// links. Throws std::invalid_argument "ElementFactory::make(): invalid elementType" for the family
// names (generic demand, generic link) and values outside the vocabulary.
class ElementFactory {
 public:
  static std::shared_ptr<Element> make(ElementType type);

  // A reservoir registered as id 0 of the owner "Talvera".
  static std::shared_ptr<Element> makeReservoir();
  static std::shared_ptr<Element> makeHumanDemand();
  static std::shared_ptr<Element> makeAnimalDemand();
  static std::shared_ptr<Element> makeIndustrialDemand();
  static std::shared_ptr<Element> makeAgricultureDemand();
  static std::shared_ptr<Element> makeDrainDemand();
  static std::shared_ptr<Element> makeJunction();
  static std::shared_ptr<Element> makeBasin();
  static std::shared_ptr<Element> makeNaturalLink();
  static std::shared_ptr<Element> makeArtificialLink();
};
