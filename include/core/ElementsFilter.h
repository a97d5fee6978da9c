#pragma once

#include <memory>
#include <set>
#include <vector>

#include "core/Element.h"
#include "core/Link.h"
#include "core/Node.h"

// Selections from a scenario's vector of elements. Every result keeps the order of the input.
class ElementsFilter {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  static std::vector<std::shared_ptr<Link>> filterByLinks(const Elements& elements);
  static std::vector<std::shared_ptr<Link>> filterByEnabledLinks(const Elements& elements);
  static std::vector<std::shared_ptr<Node>> filterByNodes(const Elements& elements);
  static std::vector<std::shared_ptr<Node>> filterByEnabledNodes(const Elements& elements);
  static std::vector<std::shared_ptr<Link>> filterByUnionLinks(const Elements& elements);
  static Elements filterByType(const Elements& elements, const std::set<ElementType>& types);
  static Elements filterByComplementType(const Elements& elements,
                                         const std::set<ElementType>& types);
  static Elements filterByEnabledElements(const Elements& elements);
  static Elements filterByLinksElements(const Elements& elements);
  static Elements filterByNodesElements(const Elements& elements);
  static Elements filterByEnabledLinksElements(const Elements& elements);
  static Elements filterByEnabledNodesElements(const Elements& elements);
  static Elements filterByIds(const Elements& elements, const std::set<unsigned int>& ids);
  static Elements filterByDatabaseIDs(const Elements& elements, const std::set<unsigned int>& ids);
  // The element with that id, or null.
  static std::shared_ptr<Element> getElement(const Elements& elements, unsigned int id);
  static std::shared_ptr<Element> getElementByDatabaseID(const Elements& elements,
                                                         unsigned int databaseId);

 private:
  // The elements of class T (optionally only enabled ones), as T or as Element.
  template <typename T, typename Result>
  static std::vector<std::shared_ptr<Result>> filter(const Elements& elements, bool onlyEnabled) {
    std::vector<std::shared_ptr<Result>> result;
    for (const auto& element : elements) {
      if (onlyEnabled && !element->isEnabled()) continue;
      if (auto cast = std::dynamic_pointer_cast<T>(element)) result.push_back(cast);
    }
    return result;
  }

  template <typename Keep>
  static Elements select(const Elements& elements, Keep keep) {
    Elements result;
    for (const auto& element : elements) {
      if (keep(*element)) result.push_back(element);
    }
    return result;
  }
};
