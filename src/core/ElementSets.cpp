#include "core/ElementSets.h"

#include <map>
#include <stdexcept>

using E = ElementType;
using Category = ElementGroup::ElementCategoriesEnum;

const std::set<ElementType>& ElementSets::demandsWithReservoir() {
  static const std::set<ElementType> set = {E::reservoir,        E::humanDemand,
                                            E::animalDemand,     E::industrialDemand,
                                            E::irrigationDemand, E::drain};
  return set;
}

const std::set<ElementType>& ElementSets::demands() {
  static const std::set<ElementType> set = {E::humanDemand, E::animalDemand, E::industrialDemand,
                                            E::irrigationDemand, E::drain};
  return set;
}

const std::set<ElementType>& ElementSets::consumerDemands() {
  static const std::set<ElementType> set = {E::humanDemand, E::animalDemand, E::industrialDemand,
                                            E::irrigationDemand};
  return set;
}

const std::set<ElementType>& ElementSets::reservoir() {
  static const std::set<ElementType> set = {E::reservoir};
  return set;
}

const std::set<ElementType>& ElementSets::junction() {
  static const std::set<ElementType> set = {E::junction};
  return set;
}

const std::set<ElementType>& ElementSets::basin() {
  static const std::set<ElementType> set = {E::basin};
  return set;
}

const std::set<ElementType>& ElementSets::nodes() {
  static const std::set<ElementType> set = [] {
    std::set<ElementType> result = demandsWithReservoir();
    result.insert({E::junction, E::basin});
    return result;
  }();
  return set;
}

const std::set<ElementType>& ElementSets::links() {
  static const std::set<ElementType> set = {E::artificialLink, E::naturalLink};
  return set;
}

const std::set<ElementType>& ElementSets::allElements() {
  static const std::set<ElementType> set = [] {
    std::set<ElementType> result = nodes();
    result.insert(links().begin(), links().end());
    return result;
  }();
  return set;
}

const std::vector<std::set<ElementType>>& ElementSets::categories() {
  static const std::vector<std::set<ElementType>> list = {demands(), reservoir(), junction(),
                                                          links(), basin()};
  return list;
}

const std::set<ElementType>& ElementSetFactoryByCategory::make(Category category) {
  static const std::map<Category, const std::set<ElementType>* (*)()> dict = {
      {Category::demand, [] { return &ElementSets::demands(); }},
      {Category::reservoir, [] { return &ElementSets::reservoir(); }},
      {Category::junction, [] { return &ElementSets::junction(); }},
      {Category::links, [] { return &ElementSets::links(); }},
      {Category::basin, [] { return &ElementSets::basin(); }},
  };
  auto it = dict.find(category);
  if (it == dict.end()) {
    throw std::invalid_argument("ElementSetFactoryByCategory::make(): invalid category");
  }
  return *it->second();
}

const std::set<ElementType>& ElementSetFactoryByCategory::getSetFromElementType(ElementType type) {
  for (const std::set<ElementType>& set : ElementSets::categories()) {
    if (set.count(type) != 0) return set;
  }
  throw std::invalid_argument(
      "ElementSetFactoryByCategory::getSetFromElementType(): invalid elementType");
}
