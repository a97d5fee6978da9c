#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "common/Point2D.h"
#include "core/Element.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/Scenario.h"

// The facade through which an interface edits the network of a scenario. Each edit is a memory
// part (the private functions below), which every form of the edit shares, wrapped by the steps
// that put elements into and take them out of the scenario. The ...NoDatabase forms take those
// steps in memory only, through the scenario's virtual addElement, posAddElement and
// removeElement, so that each kind of scenario keeps its own settings in step.
class CoreServiceManager {
 public:
  using ScenarioPtr = std::shared_ptr<Scenario>;
  using ElementPtr = std::shared_ptr<Element>;

  // The forms below do what their ...NoDatabase twins do and keep the open project database in
  // step: an added element gets its row, input series and curve (and its databaseId), a removed
  // one loses its rows. They throw as their twins, DatabaseException on an SQLite failure and
  // std::logic_error without an open database; an element whose row could not be written is
  // taken out of the scenario again.
  static void addElement(const ScenarioPtr& scenario, const ElementPtr& element, bool rename);
  static void addElement(const ScenarioPtr& scenario, const ElementPtr& element, unsigned int id,
                         bool rename);
  static ElementPtr createElement(const ScenarioPtr& scenario, ElementType type, bool rename);
  static ElementPtr createElement(const ScenarioPtr& scenario, ElementType type, unsigned int id,
                                  bool rename);
  static std::shared_ptr<Node> createNode(const ScenarioPtr& scenario, ElementType type,
                                          const Point2D& position, bool rename);
  static std::shared_ptr<Node> createNode(const ScenarioPtr& scenario, ElementType type,
                                          const Point2D& position, unsigned int id, bool rename);
  static std::shared_ptr<Link> createLink(const ScenarioPtr& scenario, ElementType type,
                                          const std::shared_ptr<Node>& upstream,
                                          const std::shared_ptr<Node>& downstream, bool rename);
  static std::shared_ptr<Link> createLinkCopy(const std::shared_ptr<Link>& model,
                                              const ScenarioPtr& scenario,
                                              const std::shared_ptr<Node>& upstream,
                                              const std::shared_ptr<Node>& downstream, bool rename);
  static void deleteElement(const ScenarioPtr& scenario, const ElementPtr& element);
  static std::shared_ptr<Link> changeLinkType(const std::shared_ptr<Link>& link, ElementType type,
                                              const ScenarioPtr& scenario);

  // Adds element under the scenario's next free id (renamed "<type name><id>" when rename is
  // true), then completes it in the scenario.
  static void addElementNoDatabase(const ScenarioPtr& scenario, const ElementPtr& element,
                                   bool rename);
  // As above under id; later ids stay above it.
  static void addElementNoDatabase(const ScenarioPtr& scenario, const ElementPtr& element,
                                   unsigned int id, bool rename);

  // A new element of a concrete type, added to scenario: nodes at (0, 0), links unattached.
  // Throws std::invalid_argument "ElementFactory::make(): invalid elementType" for a family type.
  static ElementPtr createElementNoDatabase(const ScenarioPtr& scenario, ElementType type,
                                            bool rename);
  static ElementPtr createElementNoDatabase(const ScenarioPtr& scenario, ElementType type,
                                            unsigned int id, bool rename);

  // A new node at position (map units), added to scenario. Throws std::invalid_argument
  // "CoreServiceManager::createNode(): invalid node type" for a type that is not a node's.
  static std::shared_ptr<Node> createNodeNoDatabase(const ScenarioPtr& scenario, ElementType type,
                                                    const Point2D& position, bool rename);
  static std::shared_ptr<Node> createNodeNoDatabase(const ScenarioPtr& scenario, ElementType type,
                                                    const Point2D& position, unsigned int id,
                                                    bool rename);

  // A new link of type from upstream to downstream, with the add-on "Nenhum", attached to both
  // and added to scenario. Throws std::invalid_argument
  // "CoreServiceManager::createLink(): invalid link type" for a type that is not a link's,
  // NetworkUtils::RepeatedLinkException when a link of the scenario already joins the two nodes
  // either way, and NetworkUtils::InvalidBidirectionalLinkException when a bidirectional link
  // joins them; nothing changes then.
  static std::shared_ptr<Link> createLinkNoDatabase(const ScenarioPtr& scenario, ElementType type,
                                                    const std::shared_ptr<Node>& upstream,
                                                    const std::shared_ptr<Node>& downstream,
                                                    bool rename);
  // A link of the type of model, with its name and a copy of its add-on, from upstream to
  // downstream; added and checked as by createLinkNoDatabase.
  static std::shared_ptr<Link> createLinkCopyNoDatabase(const std::shared_ptr<Link>& model,
                                                        const ScenarioPtr& scenario,
                                                        const std::shared_ptr<Node>& upstream,
                                                        const std::shared_ptr<Node>& downstream,
                                                        bool rename);

  // Removes element from scenario. A node's links go first, so that its neighbours lose them
  // from their lists and matrices. Throws std::invalid_argument
  // "Scenario::removeElement(): invalid elementId" for an element the scenario does not hold.
  static void deleteElementNoDatabase(const ScenarioPtr& scenario, const ElementPtr& element);

  // Replaces link by a link of type between the same ends, under the same id, with its name,
  // state, inputs, add-on, return share, upstream allocation and settings; gives the new link,
  // or link itself when it already has that type. Throws std::invalid_argument
  // "CoreServiceManager::changeLinkType(): invalid link type" for a type that is not a link's
  // and "CoreServiceManager::changeLinkType(): the link has no ends" for an unattached link.
  static std::shared_ptr<Link> changeLinkTypeNoDatabase(const std::shared_ptr<Link>& link,
                                                        ElementType type,
                                                        const ScenarioPtr& scenario);

 private:
  // Takes one element out of a scenario: from memory, or from memory and the database.
  using RemoveStep = std::function<void(const ScenarioPtr&, const ElementPtr&)>;
  // Puts one element into a scenario, under the next free id or under the id given, renamed or
  // not: into memory, or into memory and the database.
  using AddStep =
      std::function<void(const ScenarioPtr&, const ElementPtr&, std::optional<unsigned int>, bool)>;

  static void addInMemory(const ScenarioPtr& scenario, const ElementPtr& element,
                          std::optional<unsigned int> id, bool rename);
  static void addWithDatabase(const ScenarioPtr& scenario, const ElementPtr& element,
                              std::optional<unsigned int> id, bool rename);
  static void removeNoDatabase(const ScenarioPtr& scenario, const ElementPtr& element);
  static void removeWithDatabase(const ScenarioPtr& scenario, const ElementPtr& element);

  // The creations, with the step that puts the new element into the scenario.
  static ElementPtr createElementWith(const ScenarioPtr& scenario, ElementType type,
                                      std::optional<unsigned int> id, bool rename,
                                      const AddStep& add);
  static std::shared_ptr<Node> createNodeWith(const ScenarioPtr& scenario, ElementType type,
                                              const Point2D& position,
                                              std::optional<unsigned int> id, bool rename,
                                              const AddStep& add);
  static std::shared_ptr<Link> createLinkWith(const ScenarioPtr& scenario, ElementType type,
                                              const std::shared_ptr<Node>& upstream,
                                              const std::shared_ptr<Node>& downstream, bool rename,
                                              const AddStep& add);
  static std::shared_ptr<Link> createLinkCopyWith(const std::shared_ptr<Link>& model,
                                                  const ScenarioPtr& scenario,
                                                  const std::shared_ptr<Node>& upstream,
                                                  const std::shared_ptr<Node>& downstream,
                                                  bool rename, const AddStep& add);
  static std::shared_ptr<Link> changeLinkTypeWith(const std::shared_ptr<Link>& link,
                                                  ElementType type, const ScenarioPtr& scenario,
                                                  const RemoveStep& remove, const AddStep& add);

  // A new node of type at position, not yet in any scenario.
  static std::shared_ptr<Node> makeNode(ElementType type, const Point2D& position);
  // A new link of type between two nodes of scenario that no link joins yet, attached to both
  // but not yet in the scenario.
  static std::shared_ptr<Link> makeCheckedLink(const ScenarioPtr& scenario, ElementType type,
                                               const std::shared_ptr<Node>& upstream,
                                               const std::shared_ptr<Node>& downstream,
                                               const std::string& name);
  // Removes a node's links, then the element.
  static void deleteWithLinks(const ScenarioPtr& scenario, const ElementPtr& element,
                              const RemoveStep& remove);
  // Removes link and adds its replacement of type under its id, carrying its state across.
  static std::shared_ptr<Link> replaceLink(const std::shared_ptr<Link>& link, ElementType type,
                                           const ScenarioPtr& scenario, const RemoveStep& remove,
                                           const AddStep& add);
};
