#include "rules/OptReleaseRuleTwinFactory.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "rules/ConstReleaseRule.h"
#include "rules/HydrologicalStateReleaseRule.h"
#include "rules/OptConstReleaseRule.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoPeriodicReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"
#include "rules/PeriodicReleaseRule.h"
#include "rules/SerieReleaseRule.h"
#include "rules/VolDepOneReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"

namespace {

using TwinMaker = std::shared_ptr<ReleaseRule> (*)(const ReleaseRule&, double);

constexpr double kMark = OptReleaseRule::kDecisionMark;
// The guarantee (%) each state of a state rule's twin must reach: the strictest one, since the
// simulation rule has none to keep, and never 0, which the hedging objective divides by.
constexpr double kRequiredGuarantee = 100.0;

// A new twin with what ReleaseRule::copy() carries: the run's interval and window and the flag
// that counts natural inflows as zero.
template <typename Twin>
std::shared_ptr<Twin> startTwin(const ReleaseRule& rule) {
  auto twin = std::make_shared<Twin>();
  twin->setInterval(rule.getInterval());
  twin->setWindowIndex(rule.getWindowIndex());
  twin->setZeroContribution(rule.getZeroContribution());
  return twin;
}

std::shared_ptr<ReleaseRule> noneTwin(const ReleaseRule& rule, double) {
  return startTwin<OptNoneReleaseRule>(rule);
}

std::shared_ptr<ReleaseRule> constTwin(const ReleaseRule& rule, double maxRelease) {
  auto twin = startTwin<OptConstReleaseRule>(rule);
  twin->setRelease(static_cast<const ConstReleaseRule&>(rule).getRelease());
  twin->setLowerAndUpperRelease(0.0, maxRelease);
  twin->setToOpt(true);
  return twin;
}

std::shared_ptr<ReleaseRule> periodicTwin(const ReleaseRule& rule, double maxRelease) {
  auto twin = startTwin<OptPeriodicReleaseRule>(rule);
  twin->setRelease(static_cast<const PeriodicReleaseRule&>(rule).getRelease());
  twin->setLowerAndUpperRelease(0.0, maxRelease);
  twin->setToOpt(std::vector<bool>(12, true));
  return twin;
}

// Every date on which the series holds a release is flagged; the flags keep its interval.
std::shared_ptr<ReleaseRule> serieTwin(const ReleaseRule& rule, double maxRelease) {
  const auto& releases = static_cast<const SerieReleaseRule&>(rule).getReleaseSerie();
  auto flags = releases->copy();
  for (const auto& entry : releases->getMapOfJulianToValues()) flags->setValue(entry.first, 1.0);
  auto twin = startTwin<OptSerieReleaseRule>(rule);
  twin->setReleaseSerie(releases->copy());
  twin->setToOptSerie(flags);
  twin->setMaxRelease(maxRelease);
  return twin;
}

std::shared_ptr<ReleaseRule> hydrologicalStateTwin(const ReleaseRule& rule, double maxRelease) {
  const auto& source = static_cast<const HydrologicalStateReleaseRule&>(rule);
  const unsigned int states = source.getNumOfStates();
  const auto& zones = source.getVectorOfProportionalZones();
  auto twin = startTwin<OptHydrologicalStateReleaseRule>(rule);
  twin->setReservoirsIdsOfSystem(source.getReservoirsIds());
  twin->setStates(states, zones, source.getRelease());
  twin->setOptStates(zones, std::vector<double>(states, kMark),
                     std::vector<double>(states, kRequiredGuarantee));
  twin->setMaxRelease(maxRelease);
  return twin;
}

template <typename Twin>
std::shared_ptr<ReleaseRule> volDepOneTwin(const ReleaseRule& rule, double maxRelease) {
  const auto& source = static_cast<const VolDepOneReleaseRule&>(rule);
  auto rows = source.getVectorOfVolDepOneReleaseStruct();
  auto twin = startTwin<Twin>(rule);
  twin->setReservoirDependencyId(source.getReservoirDependencyId());
  twin->setVectorOfVolDepOneReleaseStruct(rows);
  for (auto& row : rows) std::fill(row.releases.begin(), row.releases.end(), kMark);
  twin->setToOptVectorOfVolDepOneReleaseStruct(rows);
  twin->setMaxRelease(maxRelease);
  return twin;
}

template <typename Twin>
std::shared_ptr<ReleaseRule> volDepTwoTwin(const ReleaseRule& rule, double maxRelease) {
  const auto& source = static_cast<const VolDepTwoReleaseRule&>(rule);
  auto table = source.getVolDepTwoReleaseStruct();
  auto twin = startTwin<Twin>(rule);
  twin->setReservoirDependencyId(source.getReservoirDependencyId1(),
                                 source.getReservoirDependencyId2());
  twin->setMaxRelease(maxRelease);
  // A rule never filled in has the twin's own empty table, which the periodic setter would refuse
  // for want of twelve month slots.
  if (table.releases.empty()) return twin;
  twin->setVolDepTwoReleaseStruct(table);
  for (auto& month : table.releases) {
    for (auto& row : month) std::fill(row.begin(), row.end(), kMark);
  }
  twin->setOptVolDepTwoReleaseStruct(table);
  return twin;
}

std::shared_ptr<ReleaseRule> copyOf(const ReleaseRule& rule, double) { return rule.copy(); }

// The one table of twins: a type without a row, a learned rule, has none.
const std::map<ReleaseRuleType, TwinMaker>& twinMakers() {
  using R = ReleaseRuleType;
  static const std::map<ReleaseRuleType, TwinMaker> table = {
      {R::none, noneTwin},
      {R::constant, constTwin},
      {R::periodic, periodicTwin},
      {R::serie, serieTwin},
      {R::hydrologicalState, hydrologicalStateTwin},
      {R::staticVolumeDependence1, volDepOneTwin<OptVolDepOneStaticReleaseRule>},
      {R::periodicVolumeDependence1, volDepOneTwin<OptVolDepOnePeriodicReleaseRule>},
      {R::staticVolumeDependence2, volDepTwoTwin<OptVolDepTwoStaticReleaseRule>},
      {R::periodicVolumeDependence2, volDepTwoTwin<OptVolDepTwoPeriodicReleaseRule>},
      {R::optNone, copyOf},
      {R::optConstant, copyOf},
      {R::optPeriodic, copyOf},
      {R::optSerie, copyOf},
      {R::optHydrologicalState, copyOf},
      {R::optStaticVolumeDependence1, copyOf},
      {R::optPeriodicVolumeDependence1, copyOf},
      {R::optStaticVolumeDependence2, copyOf},
      {R::optPeriodicVolumeDependence2, copyOf},
  };
  return table;
}

}  // namespace

std::shared_ptr<ReleaseRule> OptReleaseRuleTwinFactory::make(const ReleaseRule& rule,
                                                             double maxRelease) {
  if (maxRelease < 0.0) {
    throw std::invalid_argument(
        "OptReleaseRuleTwinFactory::make(): the maxRelease is a negative value");
  }
  const auto type = rule.getType();
  const auto it = twinMakers().find(type.getType());
  if (it == twinMakers().end()) {
    throw std::invalid_argument("OptReleaseRuleTwinFactory::make(): no optimisable twin for " +
                                type.getName());
  }
  return it->second(rule, maxRelease);
}
