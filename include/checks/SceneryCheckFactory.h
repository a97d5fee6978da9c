#pragma once

#include <memory>

#include "checks/SceneryCheck.h"

// Makes the check of a scenario by its kind. Throws std::invalid_argument
// "SceneryCheckFactory::make(): invalid scenery type" for a kind without one.
class SceneryCheckFactory {
 public:
  static std::shared_ptr<SceneryCheck> make(std::weak_ptr<Scenario> scenario);
  static std::shared_ptr<SceneryCheck> makePriorityCheck(std::weak_ptr<Scenario> scenario);
  static std::shared_ptr<SceneryCheck> makeRuleCheck(std::weak_ptr<Scenario> scenario);
  static std::shared_ptr<SceneryCheck> makeGuaranteeCurveCheck(std::weak_ptr<Scenario> scenario);
};
