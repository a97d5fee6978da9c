#include "managers/CoreServiceManager.h"

#include <map>
#include <set>
#include <stdexcept>
#include <vector>

#include "core/ElementFactory.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/LinkFactory.h"
#include "core/MementoChangeLinkType.h"
#include "core/NetworkUtils.h"
#include "project/database/DatabaseDelete.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/SQLStorage.h"
#include "vocabulary/Vocabulary.h"

namespace {

using LinkMaker = std::function<std::shared_ptr<Link>(
    const std::shared_ptr<Node>&, const std::shared_ptr<Node>&, const std::string&)>;

template <typename T>
std::shared_ptr<Link> makeLinkOf(const std::shared_ptr<Node>& upstream,
                                 const std::shared_ptr<Node>& downstream, const std::string& name) {
  return LinkFactory<T>::make(upstream, downstream, name, Vocabulary::of(LinkAddonType::none));
}

const std::map<ElementType, LinkMaker>& linkMakers() {
  static const std::map<ElementType, LinkMaker> makers = {
      {ElementType::naturalLink, makeLinkOf<NaturalLink>},
      {ElementType::artificialLink, makeLinkOf<ArtificialLink>},
  };
  return makers;
}

void requireType(const std::set<ElementType>& types, ElementType type, const char* text) {
  if (types.count(type) == 0) throw std::invalid_argument(text);
}

// A node's links, each once, copied since removing them changes the node's lists.
std::vector<std::shared_ptr<Link>> linksOf(const std::shared_ptr<Element>& element) {
  auto node = std::dynamic_pointer_cast<Node>(element);
  if (!node) return {};
  std::map<unsigned int, std::shared_ptr<Link>> links;
  for (const auto& link : node->getUpstreamLinks()) links.emplace(link->getId(), link);
  for (const auto& link : node->getDownstreamLinks()) links.emplace(link->getId(), link);
  std::vector<std::shared_ptr<Link>> result;
  for (const auto& entry : links) result.push_back(entry.second);
  return result;
}

// The replacement takes everything the user set on the link; only its class changes.
void carryLinkData(const Link& from, Link& to) {
  to.setEnabled(from.isEnabled());
  for (const auto& serie : from.getVectorOfInputSeries()) {
    to.getInputSerie(serie->getType())->copyFrom(serie);
  }
  to.setLinkAddon(from.getLinkAddon()->copy());
  to.setIsBidirectional(from.getIsBidirectional());
  to.configureSenseInfo(from.getSenseInfo());
}

}  // namespace

void CoreServiceManager::addElement(const ScenarioPtr& scenario, const ElementPtr& element,
                                    bool rename) {
  addWithDatabase(scenario, element, std::nullopt, rename);
}

void CoreServiceManager::addElement(const ScenarioPtr& scenario, const ElementPtr& element,
                                    unsigned int id, bool rename) {
  addWithDatabase(scenario, element, id, rename);
}

CoreServiceManager::ElementPtr CoreServiceManager::createElement(const ScenarioPtr& scenario,
                                                                 ElementType type, bool rename) {
  return createElementWith(scenario, type, std::nullopt, rename, addWithDatabase);
}

CoreServiceManager::ElementPtr CoreServiceManager::createElement(const ScenarioPtr& scenario,
                                                                 ElementType type, unsigned int id,
                                                                 bool rename) {
  return createElementWith(scenario, type, id, rename, addWithDatabase);
}

std::shared_ptr<Node> CoreServiceManager::createNode(const ScenarioPtr& scenario, ElementType type,
                                                     const Point2D& position, bool rename) {
  return createNodeWith(scenario, type, position, std::nullopt, rename, addWithDatabase);
}

std::shared_ptr<Node> CoreServiceManager::createNode(const ScenarioPtr& scenario, ElementType type,
                                                     const Point2D& position, unsigned int id,
                                                     bool rename) {
  return createNodeWith(scenario, type, position, id, rename, addWithDatabase);
}

std::shared_ptr<Link> CoreServiceManager::createLink(const ScenarioPtr& scenario, ElementType type,
                                                     const std::shared_ptr<Node>& upstream,
                                                     const std::shared_ptr<Node>& downstream,
                                                     bool rename) {
  return createLinkWith(scenario, type, upstream, downstream, rename, addWithDatabase);
}

std::shared_ptr<Link> CoreServiceManager::createLinkCopy(const std::shared_ptr<Link>& model,
                                                         const ScenarioPtr& scenario,
                                                         const std::shared_ptr<Node>& upstream,
                                                         const std::shared_ptr<Node>& downstream,
                                                         bool rename) {
  return createLinkCopyWith(model, scenario, upstream, downstream, rename, addWithDatabase);
}

void CoreServiceManager::deleteElement(const ScenarioPtr& scenario, const ElementPtr& element) {
  deleteWithLinks(scenario, element, removeWithDatabase);
}

std::shared_ptr<Link> CoreServiceManager::changeLinkType(const std::shared_ptr<Link>& link,
                                                         ElementType type,
                                                         const ScenarioPtr& scenario) {
  return changeLinkTypeWith(link, type, scenario, removeWithDatabase, addWithDatabase);
}

void CoreServiceManager::addElementNoDatabase(const ScenarioPtr& scenario,
                                              const ElementPtr& element, bool rename) {
  addInMemory(scenario, element, std::nullopt, rename);
}

void CoreServiceManager::addElementNoDatabase(const ScenarioPtr& scenario,
                                              const ElementPtr& element, unsigned int id,
                                              bool rename) {
  addInMemory(scenario, element, id, rename);
}

CoreServiceManager::ElementPtr CoreServiceManager::createElementNoDatabase(
    const ScenarioPtr& scenario, ElementType type, bool rename) {
  return createElementWith(scenario, type, std::nullopt, rename, addInMemory);
}

CoreServiceManager::ElementPtr CoreServiceManager::createElementNoDatabase(
    const ScenarioPtr& scenario, ElementType type, unsigned int id, bool rename) {
  return createElementWith(scenario, type, id, rename, addInMemory);
}

std::shared_ptr<Node> CoreServiceManager::createNodeNoDatabase(const ScenarioPtr& scenario,
                                                               ElementType type,
                                                               const Point2D& position,
                                                               bool rename) {
  return createNodeWith(scenario, type, position, std::nullopt, rename, addInMemory);
}

std::shared_ptr<Node> CoreServiceManager::createNodeNoDatabase(const ScenarioPtr& scenario,
                                                               ElementType type,
                                                               const Point2D& position,
                                                               unsigned int id, bool rename) {
  return createNodeWith(scenario, type, position, id, rename, addInMemory);
}

std::shared_ptr<Link> CoreServiceManager::createLinkNoDatabase(
    const ScenarioPtr& scenario, ElementType type, const std::shared_ptr<Node>& upstream,
    const std::shared_ptr<Node>& downstream, bool rename) {
  return createLinkWith(scenario, type, upstream, downstream, rename, addInMemory);
}

std::shared_ptr<Link> CoreServiceManager::createLinkCopyNoDatabase(
    const std::shared_ptr<Link>& model, const ScenarioPtr& scenario,
    const std::shared_ptr<Node>& upstream, const std::shared_ptr<Node>& downstream, bool rename) {
  return createLinkCopyWith(model, scenario, upstream, downstream, rename, addInMemory);
}

void CoreServiceManager::deleteElementNoDatabase(const ScenarioPtr& scenario,
                                                 const ElementPtr& element) {
  deleteWithLinks(scenario, element, removeNoDatabase);
}

std::shared_ptr<Link> CoreServiceManager::changeLinkTypeNoDatabase(
    const std::shared_ptr<Link>& link, ElementType type, const ScenarioPtr& scenario) {
  return changeLinkTypeWith(link, type, scenario, removeNoDatabase, addInMemory);
}

void CoreServiceManager::addInMemory(const ScenarioPtr& scenario, const ElementPtr& element,
                                     std::optional<unsigned int> id, bool rename) {
  if (id) {
    scenario->addElement(element, rename, *id);
  } else {
    scenario->addElement(element, rename);
  }
  scenario->posAddElement(element, rename);
}

void CoreServiceManager::addWithDatabase(const ScenarioPtr& scenario, const ElementPtr& element,
                                         std::optional<unsigned int> id, bool rename) {
  if (id) {
    scenario->addElement(element, rename, *id);
  } else {
    scenario->addElement(element, rename);
  }
  try {
    DatabaseInsert::insertNewElementInSceneryDatabase(SQLStorage::getInstance().getStorageRef(),
                                                      scenario->getDatabaseId(), *element);
  } catch (...) {
    // Memory must not hold an element that the database lacks.
    scenario->removeElement(element->getId());
    throw;
  }
  scenario->posAddElement(element, rename);
}

void CoreServiceManager::removeNoDatabase(const ScenarioPtr& scenario, const ElementPtr& element) {
  scenario->removeElement(element->getId());
}

void CoreServiceManager::removeWithDatabase(const ScenarioPtr& scenario,
                                            const ElementPtr& element) {
  DatabaseDelete::deleteElement(SQLStorage::getInstance().getStorageRef(), element->getDatabaseId(),
                                element.get());
  scenario->removeElement(element->getId());
}

CoreServiceManager::ElementPtr CoreServiceManager::createElementWith(const ScenarioPtr& scenario,
                                                                     ElementType type,
                                                                     std::optional<unsigned int> id,
                                                                     bool rename,
                                                                     const AddStep& add) {
  ElementPtr element = ElementFactory::make(type);
  add(scenario, element, id, rename);
  return element;
}

std::shared_ptr<Node> CoreServiceManager::createNodeWith(const ScenarioPtr& scenario,
                                                         ElementType type, const Point2D& position,
                                                         std::optional<unsigned int> id,
                                                         bool rename, const AddStep& add) {
  std::shared_ptr<Node> node = makeNode(type, position);
  add(scenario, node, id, rename);
  return node;
}

std::shared_ptr<Link> CoreServiceManager::createLinkWith(const ScenarioPtr& scenario,
                                                         ElementType type,
                                                         const std::shared_ptr<Node>& upstream,
                                                         const std::shared_ptr<Node>& downstream,
                                                         bool rename, const AddStep& add) {
  requireType(ElementSets::links(), type, "CoreServiceManager::createLink(): invalid link type");
  std::shared_ptr<Link> link = makeCheckedLink(scenario, type, upstream, downstream, "");
  add(scenario, link, std::nullopt, rename);
  return link;
}

std::shared_ptr<Link> CoreServiceManager::createLinkCopyWith(
    const std::shared_ptr<Link>& model, const ScenarioPtr& scenario,
    const std::shared_ptr<Node>& upstream, const std::shared_ptr<Node>& downstream, bool rename,
    const AddStep& add) {
  std::shared_ptr<Link> link =
      makeCheckedLink(scenario, model->getType(), upstream, downstream, model->getName());
  link->setLinkAddon(model->getLinkAddon()->copy());
  add(scenario, link, std::nullopt, rename);
  return link;
}

std::shared_ptr<Link> CoreServiceManager::changeLinkTypeWith(const std::shared_ptr<Link>& link,
                                                             ElementType type,
                                                             const ScenarioPtr& scenario,
                                                             const RemoveStep& remove,
                                                             const AddStep& add) {
  requireType(ElementSets::links(), type,
              "CoreServiceManager::changeLinkType(): invalid link type");
  if (link->getType() == type) return link;
  return replaceLink(link, type, scenario, remove, add);
}

std::shared_ptr<Node> CoreServiceManager::makeNode(ElementType type, const Point2D& position) {
  requireType(ElementSets::nodes(), type, "CoreServiceManager::createNode(): invalid node type");
  auto node = std::static_pointer_cast<Node>(ElementFactory::make(type));
  node->setX(position.x);
  node->setY(position.y);
  return node;
}

std::shared_ptr<Link> CoreServiceManager::makeCheckedLink(const ScenarioPtr& scenario,
                                                          ElementType type,
                                                          const std::shared_ptr<Node>& upstream,
                                                          const std::shared_ptr<Node>& downstream,
                                                          const std::string& name) {
  NetworkUtils::checkDownAndUpInLinks(upstream, downstream,
                                      ElementsFilter::filterByLinks(scenario->getElements()));
  NetworkUtils::checkInvalidBidirectionalLink(upstream, downstream);
  return linkMakers().at(type)(upstream, downstream, name);
}

void CoreServiceManager::deleteWithLinks(const ScenarioPtr& scenario, const ElementPtr& element,
                                         const RemoveStep& remove) {
  for (const auto& link : linksOf(element)) remove(scenario, link);
  remove(scenario, element);
}

std::shared_ptr<Link> CoreServiceManager::replaceLink(const std::shared_ptr<Link>& link,
                                                      ElementType type, const ScenarioPtr& scenario,
                                                      const RemoveStep& remove,
                                                      const AddStep& add) {
  const std::shared_ptr<Node> upstream = link->getUpstream();
  const std::shared_ptr<Node> downstream = link->getDownstream();
  if (!upstream || !downstream) {
    throw std::invalid_argument("CoreServiceManager::changeLinkType(): the link has no ends");
  }
  MementoChangeLinkType memento(link, scenario);
  memento.save();
  const unsigned int id = link->getId();
  remove(scenario, link);
  std::shared_ptr<Link> replacement = linkMakers().at(type)(upstream, downstream, link->getName());
  carryLinkData(*link, *replacement);
  add(scenario, replacement, id, false);
  memento.setLink(replacement);
  memento.restore();
  return replacement;
}
