#pragma once

#include <memory>
#include <set>
#include <string>

#include "checks/CheckCompleteness.h"
#include "core/Element.h"

class Link;
class Scenario;
class Serie;

// The checks of one element before a run: first its input series of the given kinds over the
// scenario's interval, then the checks of each level of its class, base first, each level's in
// the order of its table.
class ElementCheck : public CheckCompleteness {
 public:
  ElementCheck(std::shared_ptr<Element> element, std::set<SerieType> serieTypes,
               std::weak_ptr<Scenario> scenario);

  // Throws std::invalid_argument "Invalid serie type!" when the element lacks a kind to check.
  void check() override;

 protected:
  // Runs the checks of each level; an override runs its base's first.
  virtual void runChecks() {}
  // Runs each member of a level's table, in order.
  template <typename Level>
  void runTable(Level* level, const std::vector<void (Level::*)()>& table) {
    for (auto member : table) (level->*member)();
  }
  // A finding of this element, under its name.
  void report(const std::string& message) { addError(element->getName(), message); }
  void reportAs(const std::string& firstField, const std::string& message) {
    addError(firstField, message);
  }
  void appendFindings(const CheckCompleteness& other);
  // Checks the goal series of one hydrological state or zone (state counts from 0, out of
  // states) over the scenario's interval, and keeps its findings.
  void checkStateSerie(const std::shared_ptr<Serie>& serie, unsigned int state,
                       unsigned int states);

  const std::shared_ptr<Element>& getElement() const { return element; }
  std::shared_ptr<Scenario> getScenario() const { return scenario.lock(); }

 private:
  std::shared_ptr<Element> element;
  std::set<SerieType> serieTypes;
  std::weak_ptr<Scenario> scenario;
};

// The checks every node shares.
class NodeCheck : public ElementCheck {
 public:
  using ElementCheck::ElementCheck;

 protected:
  // Whether a drain is the node at the end of link or lies downstream of it.
  static bool reachesDrain(const std::shared_ptr<Link>& link);
};
