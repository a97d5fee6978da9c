#pragma once

#include <memory>

#include "core/ReleaseRule.h"

// Makes the optimisable twin of a simulation release rule: the rule that a rule optimisation or a
// system guarantee curve runs in the place of a rule scenario's rule.
//
// The twin keeps every number of its rule as the values it starts with, so that until the
// optimiser writes a candidate into it, it releases what the rule releases: the constant release,
// the twelve monthly releases, the series, the step tables with their volume limits, the states and
// their zones, the ids of the reservoirs the rule depends on (resolved, as after a copy, by
// loadAfterScenarioInstantiated() in the scenario that holds the twin), and the interval, window
// and zeroContribution that ReleaseRule::copy() carries.
//
// What it hands to the optimiser is the releases, and only them: every release cell of a step
// table and the release of every state is marked with OptReleaseRule::kDecisionMark, every date on
// which a series holds a release is flagged, and a constant or periodic release is flagged for
// optimisation over [0, maxRelease]. The volume limits and the zones stay fixed. A state rule's
// twin requires a guarantee of 100 % of every state until its owner sets its own.
class OptReleaseRuleTwinFactory {
 public:
  // The twin of rule whose releases the optimiser chooses up to maxRelease (m³/s); a copy of rule
  // when rule is optimisable already. Throws std::invalid_argument
  // "OptReleaseRuleTwinFactory::make(): the maxRelease is a negative value" below 0 and
  // "OptReleaseRuleTwinFactory::make(): no optimisable twin for <display name of the rule's type>"
  // for a learned rule.
  [[nodiscard]] static std::shared_ptr<ReleaseRule> make(const ReleaseRule& rule,
                                                         double maxRelease);
};
