#pragma once

#include <set>
#include <vector>

#include "vocabulary/EnumTypes.h"

// The groups of concrete element types. The family names "Demanda" (1) and "Trecho" (9) belong to
// no group: they never stand for a concrete element.
class ElementSets {
 public:
  static const std::set<ElementType>& demandsWithReservoir();  // {0, 2, 3, 4, 5, 6}
  static const std::set<ElementType>& demands();               // {2, 3, 4, 5, 6}
  static const std::set<ElementType>& consumerDemands();       // {2, 3, 4, 5}
  static const std::set<ElementType>& reservoir();             // {0}
  static const std::set<ElementType>& junction();              // {7}
  static const std::set<ElementType>& basin();                 // {8}
  static const std::set<ElementType>& nodes();                 // {0, 2, 3, 4, 5, 6, 7, 8}
  static const std::set<ElementType>& links();                 // {10, 11}
  static const std::set<ElementType>& allElements();           // nodes and links
  // The sets of demand, reservoir, junction, links and basin, in this order.
  static const std::vector<std::set<ElementType>>& categories();
};

// Gives the set of types of a category, or the set in which a type lies.
class ElementSetFactoryByCategory {
 public:
  // Throws std::invalid_argument "ElementSetFactoryByCategory::make(): invalid category".
  static const std::set<ElementType>& make(ElementGroup::ElementCategoriesEnum category);
  // Throws std::invalid_argument
  // "ElementSetFactoryByCategory::getSetFromElementType(): invalid elementType" for 1, 9 and
  // values outside the vocabulary.
  static const std::set<ElementType>& getSetFromElementType(ElementType type);
};
