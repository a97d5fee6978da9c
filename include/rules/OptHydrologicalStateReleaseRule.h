#pragma once

#include <memory>
#include <string>
#include <vector>

#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/OptReleaseRule.h"

// The optimisable twin of the rule by hydrological state: -998.0 marks the zone limits (taken as
// the value itself, a share of W) and the releases (value * maxRelease) the optimiser chooses.
// It also holds the guarantee each state should reach, which the hedging-curve objective compares
// with the guarantees the run achieved.
class OptHydrologicalStateReleaseRule : public HydrologicalStateReleaseRule, public OptReleaseRule {
 public:
  Enum<ReleaseRuleType> getType() const override;
  // The simulation rule's copy and the marked tables, guarantees and maximum release.
  [[nodiscard]] std::shared_ptr<ReleaseRule> copy() const override;
  // The number of marked zone limits and releases.
  unsigned int getNumOfDecisionVars() const override;
  // Rebuilds the zone limits and the releases from the marked tables and the values, in that
  // order.
  void setDecisionVars(const std::vector<double>& values) override;
  // A HydrologicalStateReleaseRule with the system's ids, the states, zones and releases.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  // The marked tables and the required guarantees (%) of the present number of states. Throws
  // std::invalid_argument "OptHydrologicalStateReleaseRule::setStates(): The size of
  // proportionalZones must be numOfStates - 1" (likewise "releases" and "requiredGuarantees" for
  // numOfStates) and "... All values of releases must be positive" for an unmarked negative one.
  void setOptStates(const std::vector<double>& optZones, const std::vector<double>& optReleases,
                    const std::vector<double>& guarantees);
  const std::vector<double>& getVectorOfOptProportionalZones() const {
    return optProportionalZones;
  }
  const std::vector<double>& getOptRelease() const { return optRelease; }
  const std::vector<double>& getRequiredGuarantees() const { return requiredGuarantees; }
  // The largest release the optimiser may choose, m³/s. Throws std::invalid_argument
  // "OptHydrologicalStateReleaseRule::setMaxRelease(): the maxRelease is a negative value".
  double getMaxRelease() const { return maxRelease; }
  void setMaxRelease(double value);

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<OptHydrologicalStateReleaseRule>();
  }
  std::string textPrefix() const override { return "Opt"; }

 private:
  std::vector<double> optProportionalZones;
  std::vector<double> optRelease;          // m³/s or the mark
  std::vector<double> requiredGuarantees;  // %, one per state
  double maxRelease = 0.0;                 // m³/s
};
