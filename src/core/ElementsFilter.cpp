#include "core/ElementsFilter.h"

#include <algorithm>

using Elements = ElementsFilter::Elements;

std::vector<std::shared_ptr<Link>> ElementsFilter::filterByLinks(const Elements& elements) {
  return filter<Link, Link>(elements, false);
}

std::vector<std::shared_ptr<Link>> ElementsFilter::filterByEnabledLinks(const Elements& elements) {
  return filter<Link, Link>(elements, true);
}

std::vector<std::shared_ptr<Node>> ElementsFilter::filterByNodes(const Elements& elements) {
  return filter<Node, Node>(elements, false);
}

std::vector<std::shared_ptr<Node>> ElementsFilter::filterByEnabledNodes(const Elements& elements) {
  return filter<Node, Node>(elements, true);
}

std::vector<std::shared_ptr<Link>> ElementsFilter::filterByUnionLinks(const Elements& elements) {
  std::vector<std::shared_ptr<Link>> result = filterByLinks(elements);
  result.erase(std::remove_if(result.begin(), result.end(),
                              [](const std::shared_ptr<Link>& link) { return !link->getIsUnion(); }),
               result.end());
  return result;
}

Elements ElementsFilter::filterByType(const Elements& elements,
                                      const std::set<ElementType>& types) {
  return select(elements, [&](const Element& e) { return types.count(e.getType()) != 0; });
}

Elements ElementsFilter::filterByComplementType(const Elements& elements,
                                                const std::set<ElementType>& types) {
  return select(elements, [&](const Element& e) { return types.count(e.getType()) == 0; });
}

Elements ElementsFilter::filterByEnabledElements(const Elements& elements) {
  return select(elements, [](const Element& e) { return e.isEnabled(); });
}

Elements ElementsFilter::filterByLinksElements(const Elements& elements) {
  return filter<Link, Element>(elements, false);
}

Elements ElementsFilter::filterByNodesElements(const Elements& elements) {
  return filter<Node, Element>(elements, false);
}

Elements ElementsFilter::filterByEnabledLinksElements(const Elements& elements) {
  return filter<Link, Element>(elements, true);
}

Elements ElementsFilter::filterByEnabledNodesElements(const Elements& elements) {
  return filter<Node, Element>(elements, true);
}

Elements ElementsFilter::filterByIds(const Elements& elements, const std::set<unsigned int>& ids) {
  return select(elements, [&](const Element& e) { return ids.count(e.getId()) != 0; });
}

Elements ElementsFilter::filterByDatabaseIDs(const Elements& elements,
                                             const std::set<unsigned int>& ids) {
  return select(elements, [&](const Element& e) { return ids.count(e.getDatabaseId()) != 0; });
}

std::shared_ptr<Element> ElementsFilter::getElement(const Elements& elements, unsigned int id) {
  auto it = std::find_if(elements.begin(), elements.end(),
                         [id](const std::shared_ptr<Element>& e) { return e->getId() == id; });
  return it == elements.end() ? nullptr : *it;
}

std::shared_ptr<Element> ElementsFilter::getElementByDatabaseID(const Elements& elements,
                                                                unsigned int databaseId) {
  auto it = std::find_if(elements.begin(), elements.end(), [databaseId](const auto& e) {
    return e->getDatabaseId() == databaseId;
  });
  return it == elements.end() ? nullptr : *it;
}
