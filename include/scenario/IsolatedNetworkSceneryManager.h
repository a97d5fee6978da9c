#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"
#include "vocabulary/Enum.h"
#include "vocabulary/EnumTypes.h"

// Splits a scenario into the pieces of a run by isolated networks and runs them. A piece is a
// scenario of the same kind holding one network of the split (IsolatedNetworkStreamsManager) and
// its own virtual elements: each link that brings water in starts at a union junction, which
// sends what that link carried in the piece run before, and each link that takes water out ends
// at a virtual drain, which takes whatever arrives. Virtual elements have ids above every id of
// the scenario and never reach it.
class IsolatedNetworkSceneryManager {
 public:
  using Progress = std::function<bool(long, long)>;
  using Pieces = std::vector<std::shared_ptr<Scenario>>;
  using NodeIds = std::set<unsigned int>;

  // Marks the union links of scenario again and makes its pieces in run order: one per isolated
  // reservoir, upstream first, and "<name>-general" last when some node is left for it.
  static Pieces produceIsolatedSceneries(Scenario& scenario);
  // The piece of reservoir, named "<scenario> - <reservoir>". Throws std::invalid_argument
  // "IsolatedNetworkManager::getSceneryFromIsolatedNetwork: Reservoir is not isolated" for a
  // reservoir without the flag.
  static std::shared_ptr<Scenario> getSceneryFromIsolatedNetwork(
      const Scenario& scenario, const std::shared_ptr<Element>& reservoir);
  // The piece of what no isolated network holds, named "<scenario>-general".
  static std::shared_ptr<Scenario> getSceneryFromGeneralNetwork(const Scenario& scenario);
  // The enabled reservoirs flagged isolated, upstream first.
  static std::vector<std::shared_ptr<Element>> getVectorOfIsolatedNetworkRootReservoirs(
      const Scenario& scenario);
  // The ids of the nodes of reservoir's network (empty when it is not flagged).
  static NodeIds getElementsThatBelongToIsolatedNetwork(const Scenario& scenario,
                                                        const std::shared_ptr<Element>& reservoir);
  static NodeIds getIsolatedNetworkGeneralElements(const Scenario& scenario);
  // Makes piece, a copy of source, hold the nodes network and the links that touch them, the
  // links that cross its border starting at union junctions or ending at virtual drains.
  static void createdVirtualElementsInIsolatedScenery(const Scenario& source, Scenario& piece,
                                                      const NodeIds& network);
  // Runs scenario piece by piece and gives the status of the run: success, cancelled, or refused
  // with the text of the refusal (the standard text when a piece failed its check, the piece
  // being the last of the isolated data). The pieces run keep their results in scenario.
  static Enum<SceneryStatus> runIsolated(Scenario& scenario, const Progress& progress);

 private:
  static std::shared_ptr<Scenario> makePiece(const Scenario& scenario, const NodeIds& network,
                                             const std::string& name);
};
