#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"

// Whether a scenario can be run by isolated networks as its reservoirs are flagged. Each test
// gives the Portuguese texts of what it found, none when the arrangement is fine.
class IsolatedNetworkChecks {
 public:
  using Findings = std::vector<std::string>;

  // Everything that keeps the scenario from a run by isolated networks: the method of execution,
  // each flagged reservoir (checkInsertionOfNewIsolatedReservoir) and the rules that would read
  // a reservoir of another network.
  static Findings findArrangementErrors(const Scenario& scenario);
  // Tests every flagged reservoir; one that fails loses its flag (the union links are marked
  // again). True when none failed; failures adds the texts of those that did.
  static bool checkNetworkArrangementAndIsolate(Scenario& scenario, Findings& failures);
  // Whether node may be flagged isolated: an enabled reservoir with a way downstream.
  static Findings checkInsertionOfNewIsolatedReservoir(const std::shared_ptr<Element>& node);
  // True when some enabled reservoir of scenario is flagged isolated.
  static bool checkExistenceOfIsolatedReservoirInScenery(const Scenario& scenario);
  // True when the reservoir has an enabled link towards an enabled node, to join its network to
  // the rest.
  static bool checkDownstreamPathExistence(const std::shared_ptr<Element>& reservoir);
  // The reservoirs whose rule reads a reservoir that the split puts in another network: that
  // network may not have run yet, and its reservoir is not in the piece.
  static Findings checkRuleDependenciesInsideIsolatedNetworks(const Scenario& scenario);
  // A windowed run restarts the reservoirs each window, which the hand-over of union flows
  // between pieces does not follow.
  static Findings checkExecutionMethod(const Scenario& scenario);
};
