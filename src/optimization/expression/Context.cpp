#include "optimization/expression/Context.h"

#include <utility>

Context::Context(std::shared_ptr<Scenario> scenario, std::vector<std::shared_ptr<Element>> elements,
                 Interval interval)
    : scenario(std::move(scenario)), elements(std::move(elements)), interval(std::move(interval)) {}

Context Context::withSingleElement(std::shared_ptr<Element> element) const {
  return Context(scenario, {std::move(element)}, interval);
}
