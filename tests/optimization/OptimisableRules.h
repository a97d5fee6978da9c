#pragma once

#include <memory>
#include <vector>

#include "common/PeriodWalker.h"
#include "core/ElementFactory.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "optimization/TwoReservoirs.h"
#include "rules/OptHydrologicalStateReleaseRule.h"
#include "rules/OptNoneReleaseRule.h"
#include "rules/OptPeriodicReleaseRule.h"
#include "rules/OptSerieReleaseRule.h"
#include "rules/OptVolDepOnePeriodicReleaseRule.h"
#include "rules/OptVolDepOneStaticReleaseRule.h"
#include "rules/OptVolDepTwoPeriodicReleaseRule.h"
#include "rules/OptVolDepTwoStaticReleaseRule.h"

namespace optimisationtest {

constexpr double kMark = OptReleaseRule::kDecisionMark;

inline std::shared_ptr<ReservoirRuleSettings> settingsOf(
    const Scenario& scenario, const std::shared_ptr<Element>& reservoir) {
  return Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager());
}

inline std::shared_ptr<Reservoir> addReservoir(Scenario& scenario) {
  auto reservoir =
      std::static_pointer_cast<Reservoir>(ElementFactory::make(ElementType::reservoir));
  scenario.addElement(reservoir, true);
  return reservoir;
}

// The optimisable rules that the two-reservoir system lacks, each on a reservoir of its own, with
// some cells marked and others fixed; the dependencies are the system's two reservoirs.
inline void addEveryOptimisableRule(RuleOptimizationScenario& scenario) {
  const auto system =
      ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir());
  const auto& a = system[0];
  const auto& b = system[1];
  std::vector<std::shared_ptr<ReleaseRule>> rules;

  rules.push_back(std::make_shared<OptNoneReleaseRule>());

  auto periodic = std::make_shared<OptPeriodicReleaseRule>();
  periodic->setRelease({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12.5});
  periodic->setToOpt(
      {true, false, true, false, false, false, false, false, false, false, true, false});
  periodic->setLowerAndUpperRelease(0.5, 30.0);
  rules.push_back(periodic);

  auto serie = std::make_shared<OptSerieReleaseRule>();
  auto releases = serie->getReleaseSerie()->copy();
  auto flags = serie->getToOptSerie()->copy();
  releases->setInterval(kTwoYears);
  flags->setInterval(kTwoYears);
  PeriodWalker::forEach(kTwoYears, [&](const Date& date) {
    releases->setValue(date, 0.25 * date.getMonth());
    flags->setValue(date, date.getMonth() % 4 == 0 ? 1.0 : 0.0);
  });
  serie->setReleaseSerie(releases);
  serie->setToOptSerie(flags);
  serie->setMaxRelease(40.0);
  rules.push_back(serie);

  auto oneStatic = std::make_shared<OptVolDepOneStaticReleaseRule>();
  oneStatic->setVectorOfVolDepOneReleaseStruct({{40, {0.5}}, {100, {1.0}}});
  oneStatic->setToOptVectorOfVolDepOneReleaseStruct({{kMark, {0.5}}, {100, {kMark}}});
  oneStatic->setMaxRelease(12.0);
  oneStatic->setReservoirDependency(a);
  rules.push_back(oneStatic);

  auto onePeriodic = std::make_shared<OptVolDepOnePeriodicReleaseRule>();
  const std::vector<double> twelve(12, 2.0);
  std::vector<double> marked = twelve;
  marked[5] = kMark;
  onePeriodic->setVectorOfVolDepOneReleaseStruct({{100, twelve}});
  onePeriodic->setToOptVectorOfVolDepOneReleaseStruct({{100, marked}});
  onePeriodic->setMaxRelease(8.0);
  rules.push_back(onePeriodic);

  auto twoStatic = std::make_shared<OptVolDepTwoStaticReleaseRule>();
  twoStatic->setVolDepTwoReleaseStruct({{50, 100}, {100}, {{{2.0}, {3.0}}}});
  twoStatic->setOptVolDepTwoReleaseStruct({{kMark, 100}, {100}, {{{kMark}, {3.0}}}});
  twoStatic->setMaxRelease(6.0);
  twoStatic->setReservoirDependency(a, b);
  rules.push_back(twoStatic);

  auto twoPeriodic = std::make_shared<OptVolDepTwoPeriodicReleaseRule>();
  const std::vector<std::vector<std::vector<double>>> slots(12, {{1.0, 1.5}});
  auto markedSlots = slots;
  markedSlots[11][0][1] = kMark;
  twoPeriodic->setVolDepTwoReleaseStruct({{100}, {30, 100}, slots});
  twoPeriodic->setOptVolDepTwoReleaseStruct({{100}, {kMark, 100}, markedSlots});
  twoPeriodic->setMaxRelease(4.0);
  twoPeriodic->setReservoirDependency(b, a);
  rules.push_back(twoPeriodic);

  auto states = std::make_shared<OptHydrologicalStateReleaseRule>();
  states->setReservoirsIdsOfSystem({a->getId(), b->getId()});
  states->setStates(3, {0.3, 0.6}, {1.0, 2.0, 3.0});
  states->setOptStates({kMark, 0.6}, {1.0, kMark, kMark}, {90.0, 80.0, 70.0});
  states->setMaxRelease(10.0);
  rules.push_back(states);

  for (const auto& rule : rules) settingsOf(scenario, addReservoir(scenario))->setRule(rule);
}

}  // namespace optimisationtest
