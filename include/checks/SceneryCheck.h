#pragma once

#include <memory>

#include "checks/CheckCompleteness.h"

class Scenario;

// The validation of a whole scenario before it runs.
class SceneryCheck : public CheckCompleteness {
 public:
  explicit SceneryCheck(std::weak_ptr<Scenario> scenario) : scenario(std::move(scenario)) {}

 protected:
  std::shared_ptr<Scenario> getScenario() const { return scenario.lock(); }

 private:
  std::weak_ptr<Scenario> scenario;
};
