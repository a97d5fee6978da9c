#pragma once

#include <map>
#include <memory>
#include <vector>

#include "checks/CheckCompleteness.h"
#include "checks/ElementCheck.h"

class Scenario;

// The validation of a whole scenario before it runs: the scenario-wide checks (window size, loops,
// at least one enabled element), then one check per enabled element. Disabled elements are not
// checked.
class SceneryCheck : public CheckCompleteness {
 public:
  explicit SceneryCheck(std::weak_ptr<Scenario> scenario) : scenario(std::move(scenario)) {}

  // Collects every finding anew; no check stops at the first.
  void check() override;
  // True when neither the scenario nor any element has a finding.
  bool isOk() const;
  // Checks and tells whether nothing was found.
  bool passes() {
    check();
    return isOk();
  }
  std::size_t getNumErrors() const;
  // The findings of one element. Throws std::invalid_argument
  // "SceneryCheck::getElementErrors: invalid element id" for an element that was not checked.
  const std::vector<ErrorStruct>& getElementErrors(unsigned int elementId) const;
  // The scenario's own findings, then each element's in the order of the elements.
  std::vector<ErrorStruct> getAllErrors() const;
  // Forgets every finding.
  void clean();

 protected:
  // The scenario-wide checks of a kind of scenario, after the common ones.
  virtual void runScenarioChecks();
  std::shared_ptr<Scenario> getScenario() const { return scenario.lock(); }

 private:
  void intervalPeriodLessThanWindowSize();
  void checkLoop();
  // A scenario with no enabled element has nothing to run.
  void checkHasEnabledElements();

  std::weak_ptr<Scenario> scenario;
  std::map<unsigned int, std::shared_ptr<ElementCheck>> elementChecks;
  std::vector<unsigned int> checkedOrder;
};

// The checks of a rule simulation: the common ones.
class RuleSceneryCheck : public SceneryCheck {
 public:
  using SceneryCheck::SceneryCheck;
};

// The checks of an operation by priorities: the common ones; priorities, goals and hydrological
// states are checked element by element.
class PrioritySceneryCheck : public SceneryCheck {
 public:
  using SceneryCheck::SceneryCheck;
};

// The checks of a guarantee-curve search: the common ones, its elements checked as in a rule
// simulation, since every trial is one.
class GuaranteeCurveSceneryCheck : public SceneryCheck {
 public:
  using SceneryCheck::SceneryCheck;
};
