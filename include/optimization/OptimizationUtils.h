#pragma once

#include <memory>
#include <vector>

#include "common/Interval.h"
#include "core/Element.h"
#include "core/SettingsManager.h"

class Solution;

// Between a candidate of a swarm and the optimisable rules of the reservoirs. The reservoirs are
// walked in the given order, enabled ones only; one without an optimisable rule takes nothing.
class OptimizationUtils {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  static unsigned int getNumOfDecisionVars(const Elements& elements,
                                           const SettingsManager& settingsManager);
  // The decision variables of solution, in order.
  static std::vector<double> makeVectorFromSolution(Solution* solution);
  // Hands each rule its slice of values. Throws std::invalid_argument
  // "OptimizationUtils::setDecisionVars(): Invalid num of elements in values" when the count
  // differs from getNumOfDecisionVars, before any rule changes.
  static void setDecisionVars(const std::vector<double>& values, const Elements& elements,
                              const SettingsManager& settingsManager);
  // The share of the periods of interval, %, in which reservoir released q within 1e-6 m³/s:
  // the guarantee of a constant release q in the last simulation.
  static double guaranteeOf(const Element& reservoir, double q, const Interval& interval);
};
