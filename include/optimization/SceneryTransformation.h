#pragma once

#include <memory>

#include "core/Scenario.h"

// Turns a scenario of one kind into a new scenario of another kind over the same network,
// interval and input series, carrying what has a meaning in the target kind.
class SceneryTransformation {
 public:
  virtual ~SceneryTransformation() = default;
  // The new scenario, with id and the source's name; the source is left as it is.
  virtual std::shared_ptr<Scenario> transform(const Scenario& source, unsigned int id) const = 0;
};
