#pragma once

#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"

// The isolated flag of reservoirs and the union links it implies: every link that crosses the
// border of an isolated network is a union link, and the scenario lists them.
class IsolatedNetworkUtils {
 public:
  // True for an enabled reservoir flagged isolated.
  static bool isIsolatedElement(const std::shared_ptr<Element>& node);
  // The enabled reservoirs flagged isolated, upstream first.
  static std::vector<std::shared_ptr<Element>> getStackOfReservoirsWithIsolatedFlagTrue(
      const Scenario& scenario);
  // Flags reservoir isolated (or not) and marks the union links again. Throws
  // std::invalid_argument "IsolatedNetworkUtils::setReservoirIsolated(): the element is not a
  // reservoir of the scenario" otherwise.
  static void setReservoirIsolated(Scenario& scenario, const std::shared_ptr<Element>& reservoir,
                                   bool flag);
  // Marks the union links of the present flags, the links that cross the border of an isolated
  // network and only those, and lists them in the scenario.
  static void markUnionLinks(Scenario& scenario);
};
