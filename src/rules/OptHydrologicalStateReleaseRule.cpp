#include "rules/OptHydrologicalStateReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

namespace {

const std::string kStates = "OptHydrologicalStateReleaseRule::setStates(): ";

void requireSize(const std::vector<double>& values, std::size_t size, const std::string& text) {
  if (values.size() != size) throw std::invalid_argument(kStates + text);
}

}  // namespace

Enum<ReleaseRuleType> OptHydrologicalStateReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optHydrologicalState);
}

std::shared_ptr<ReleaseRule> OptHydrologicalStateReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptHydrologicalStateReleaseRule>(
      HydrologicalStateReleaseRule::copy());
  rule->optProportionalZones = optProportionalZones;
  rule->optRelease = optRelease;
  rule->requiredGuarantees = requiredGuarantees;
  rule->maxRelease = maxRelease;
  return rule;
}

unsigned int OptHydrologicalStateReleaseRule::getNumOfDecisionVars() const {
  return static_cast<unsigned int>(
      std::count_if(optProportionalZones.begin(), optProportionalZones.end(), isMarked) +
      std::count_if(optRelease.begin(), optRelease.end(), isMarked));
}

void OptHydrologicalStateReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptHydrologicalStateReleaseRule");
  auto value = values.begin();
  std::vector<double> zones = optProportionalZones;
  for (double& zone : zones) {
    if (isMarked(zone)) zone = *value++;
  }
  std::vector<double> releases = optRelease;
  for (double& release : releases) {
    if (isMarked(release)) release = *value++ * maxRelease;
  }
  setStates(getNumOfStates(), zones, releases);
}

std::shared_ptr<ReleaseRule> OptHydrologicalStateReleaseRule::convertToReleaseRule() const {
  auto rule = std::make_shared<HydrologicalStateReleaseRule>();
  rule->setReservoirsIdsOfSystem(getReservoirsIds());
  rule->setStates(getNumOfStates(), getVectorOfProportionalZones(), getRelease());
  return rule;
}

void OptHydrologicalStateReleaseRule::setOptStates(const std::vector<double>& optZones,
                                                   const std::vector<double>& optReleases,
                                                   const std::vector<double>& guarantees) {
  const std::size_t states = getNumOfStates();
  requireSize(optZones, states - 1, "The size of proportionalZones must be numOfStates - 1");
  requireSize(optReleases, states, "The size of releases must be numOfStates");
  requireSize(guarantees, states, "The size of requiredGuarantees must be numOfStates");
  if (std::any_of(optReleases.begin(), optReleases.end(),
                  [](double v) { return v < 0.0 && !isMarked(v); })) {
    throw std::invalid_argument(kStates + "All values of releases must be positive");
  }
  optProportionalZones = optZones;
  optRelease = optReleases;
  requiredGuarantees = guarantees;
}

void OptHydrologicalStateReleaseRule::setMaxRelease(double value) {
  checkMaxRelease(value, "OptHydrologicalStateReleaseRule");
  maxRelease = value;
}
