#pragma once

#include <memory>

#include "optimization/SceneryTransformation.h"

// The transformation between two kinds of scenario, by their type ids (0 priorities, 1 rules,
// 2 rule optimisation, 3 guarantee curve, 4 system guarantee curve).
class SceneryTransformationFactory {
 public:
  // Throws std::invalid_argument "SceneryTransformationFactory::make(): no transformation from
  // <from> to <to>" for a pair without one: a kind into itself or an unknown id.
  static std::shared_ptr<SceneryTransformation> make(int from, int to);
};
