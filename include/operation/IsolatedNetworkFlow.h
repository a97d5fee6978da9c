#pragma once

#include "core/SceneryIsolatedData.h"
#include "operation/NetworkFlow.h"

// The network-flow model of a date in one piece of a run by isolated networks. The row of a
// union junction holds its one link at the flow that link carried in the piece run before, with
// a slack ("J<id>_s") so that a link unable to take it all keeps the programme feasible; the slack
// weighs -10,000,000 in the objective.
class IsolatedNetworkFlow : public NetworkFlow {
 public:
  IsolatedNetworkFlow(
      const SettingsManager& settingsManager, const Date& date, const Interval& interval,
      const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
      unsigned int windowIndex, const SceneryIsolatedData& isolatedData);

 protected:
  // Throws std::runtime_error "IsolatedNetworkFlow::getJunctionSubjectValue: invalid virtual
  // junction" for a union junction without exactly one outgoing link.
  double getJunctionSubjectValue(const std::shared_ptr<Element>& junction,
                                 RowVectors& row) override;

 private:
  SceneryIsolatedData isolatedData;
};
