#pragma once

#include <map>
#include <memory>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "core/SceneryIsolatedData.h"
#include "core/SettingsManager.h"
#include "hydrology/HydrologicalBalance.h"

// How much of the water passing through a node goes into one of its outgoing links in a rule
// simulation. The node's allocation matrix lists, for a set of total flows (its lines), the flow
// each outgoing link takes; between lines the share is interpolated, and above the last line
// the remainder is shared again in the proportions of a line. A link never takes more than its
// limit ("Limite de trecho"); what it does not take stays upstream.
class RuleReleaseDefaultAllocation {
 public:
  using AllocationMatrix = std::map<unsigned int, std::vector<double>>;

  RuleReleaseDefaultAllocation(const Interval& interval, const Date& date,
                               unsigned int windowIndex);
  virtual ~RuleReleaseDefaultAllocation() = default;

  // The flow into link from node at the date, m³/s. isolatedData holds the flows of the union
  // links in a run by isolated networks, and is null in any other run.
  virtual double getValue(const std::shared_ptr<Element>& node,
                          const std::shared_ptr<Element>& link,
                          const SettingsManager& settingsManager, bool zeroContribution,
                          const SceneryIsolatedData* isolatedData) = 0;

  // The link's share of total (m³/s) by the matrix, capped by the link's limit at the date.
  double getValue(const std::shared_ptr<Element>& node, const std::shared_ptr<Element>& link,
                  double total, const AllocationMatrix& matrix) const;

  // The share of linkId when x (m³/s) passes through nodeId. Throws std::out_of_range when the
  // matrix lacks either id.
  // Serves another step of the same run: the window's interval (of the same periodicity), the
  // date and the window's index.
  void setStep(const Interval& value, const Date& stepDate, unsigned int stepWindowIndex) {
    interval = value;
    date = stepDate;
    windowIndex = stepWindowIndex;
  }

  static double GetInterpolationAllocationMatrix(const AllocationMatrix& matrix, double x,
                                                 unsigned int linkId, unsigned int nodeId);

 protected:
  const HydrologicalBalance& getBalance() const { return *balance; }
  const Interval& getInterval() const { return interval; }
  const Date& getDate() const { return date; }
  unsigned int getWindowIndex() const { return windowIndex; }

  // The volume that entered node over the period, as a flow, m³/s.
  double upstreamFlow(const std::shared_ptr<Element>& node) const;

 private:
  std::shared_ptr<HydrologicalBalance> balance;
  Interval interval;
  Date date;
  unsigned int windowIndex;
};

// Releases what the reservoir's rule asks, cut to the water above the minimum volume and to the
// maximum release, and shares it by the matrix. A bidirectional link running inverted out of the
// reservoir takes its share by its own row of values.
class RuleReleaseReservoirAllocation : public RuleReleaseDefaultAllocation {
 public:
  using RuleReleaseDefaultAllocation::RuleReleaseDefaultAllocation;
  using RuleReleaseDefaultAllocation::getValue;
  double getValue(const std::shared_ptr<Element>& node, const std::shared_ptr<Element>& link,
                  const SettingsManager& settingsManager, bool zeroContribution,
                  const SceneryIsolatedData* isolatedData) override;

 private:
  // The flow the rule asks for, within what the lake holds above its minimum and maxRelease, m³/s.
  double wantedRelease(const std::shared_ptr<Reservoir>& reservoir,
                       const ReservoirRuleSettings& settings, bool zeroContribution) const;
};

// Shares what a junction receives from upstream.
class RuleReleaseJunctionAllocation : public RuleReleaseDefaultAllocation {
 public:
  using RuleReleaseDefaultAllocation::RuleReleaseDefaultAllocation;
  using RuleReleaseDefaultAllocation::getValue;
  // A union junction, which closes the network of another piece of an isolated run, sends the
  // flow its one link carried in that piece. Throws std::runtime_error for a union junction
  // outside an isolated run or with other than one outgoing link.
  double getValue(const std::shared_ptr<Element>& node, const std::shared_ptr<Element>& link,
                  const SettingsManager& settingsManager, bool zeroContribution,
                  const SceneryIsolatedData* isolatedData) override;
};

// Shares what a demand receives from upstream (its own natural flow is not part of it).
class RuleReleaseDemandAllocation : public RuleReleaseDefaultAllocation {
 public:
  using RuleReleaseDefaultAllocation::RuleReleaseDefaultAllocation;
  using RuleReleaseDefaultAllocation::getValue;
  double getValue(const std::shared_ptr<Element>& node, const std::shared_ptr<Element>& link,
                  const SettingsManager& settingsManager, bool zeroContribution,
                  const SceneryIsolatedData* isolatedData) override;
};

// Shares what a basin receives from upstream, as a demand does.
class RuleReleaseBasinAllocation : public RuleReleaseDemandAllocation {
 public:
  using RuleReleaseDemandAllocation::RuleReleaseDemandAllocation;
};
