#pragma once

#include <memory>
#include <vector>

#include "common/Interval.h"
#include "core/Element.h"
#include "core/Scenario.h"

// What a formula is evaluated against: the run whose results it reads, the elements its series
// nodes read (the first one, or one per child for the nodes that spread over elements) and the
// interval of the run.
class Context {
 public:
  Context() = default;
  Context(std::shared_ptr<Scenario> scenario, std::vector<std::shared_ptr<Element>> elements,
          Interval interval);

  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }
  const std::vector<std::shared_ptr<Element>>& getElements() const { return elements; }
  const Interval& getInterval() const { return interval; }

  // The same run and interval, with the one element given.
  Context withSingleElement(std::shared_ptr<Element> element) const;

 private:
  std::shared_ptr<Scenario> scenario;
  std::vector<std::shared_ptr<Element>> elements;
  Interval interval;
};
