#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/ElementFactory.h"
#include "core/LinkAddonPumping.h"
#include "core/LinkFactory.h"
#include "core/PriorityDemandSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "core/PriorityReservoirSettings.h"
#include "operation/ExecutionContinuous.h"
#include "scenario/PriorityScenario.h"
#include "vocabulary/Vocabulary.h"

namespace projectfile {

// A pumping table with two pumps, one running in two half days, and three rows of costs that rise
// with the flow in every month.
inline std::shared_ptr<LinkAddonPumping> twoPumps() {
  auto addon = std::make_shared<LinkAddonPumping>();
  auto first = std::make_shared<PumpingAddon>();
  first->flow = 2.0;
  first->periods = {std::make_shared<PumpingPeriod>(PumpingPeriod{0, 720}),
                    std::make_shared<PumpingPeriod>(PumpingPeriod{720, 1440})};
  auto second = std::make_shared<PumpingAddon>();
  second->flow = 1.25;
  second->periods = {std::make_shared<PumpingPeriod>(PumpingPeriod{360, 1080})};
  addon->addToPumpVector({first, second});
  std::vector<std::shared_ptr<PumpingFlowCost>> rows;
  for (double flow : {0.0, 2.0, 4.0}) {
    auto row = std::make_shared<PumpingFlowCost>();
    row->flow = flow;
    for (unsigned int month = 0; month < 12; ++month) row->costs[month] = flow * (10.0 + month);
    rows.push_back(row);
  }
  addon->addToFlowCostVector(rows);
  return addon;
}

// A priority network over 2001 with every element kind. Two reservoirs (ids 0, 1) and a basin
// (3) feed a junction (2); the junction serves a human, an animal, an industrial and an
// irrigation demand (4 to 7), which empty into a drain (8). The links follow from 9; the first
// reservoir's reach carries a propagation add-on and the canal to the human demand two pumps.
// Every reservoir and demand has a priority and state priorities of its own, and goal series
// whose values tell the element and the state apart.
class PriorityProjectBuilder {
 public:
  PriorityProjectBuilder(unsigned int id, const std::string& name)
      : scenario(std::make_shared<PriorityScenario>(
            std::make_shared<ExecutionContinuous>(), id,
            Interval(Date(2001, 1, 1), Date(2001, 12, 1), Vocabulary::of(Periodicity::monthly)),
            name)) {
    using E = ElementType;
    const auto a = node(E::reservoir);
    const auto b = node(E::reservoir);
    const auto junction = node(E::junction);
    const auto basin = node(E::basin);
    std::vector<std::shared_ptr<Node>> demands;
    for (E type : {E::humanDemand, E::animalDemand, E::industrialDemand, E::irrigationDemand}) {
      demands.push_back(node(type));
    }
    const auto drain = node(E::drain);
    link<NaturalLink>(a, junction, LinkAddonType::propagation);
    link<NaturalLink>(b, junction, LinkAddonType::none);
    link<NaturalLink>(basin, junction, LinkAddonType::none);
    link<ArtificialLink>(junction, demands[0], LinkAddonType::none)->setLinkAddon(twoPumps());
    for (std::size_t i = 1; i < demands.size(); ++i) {
      link<ArtificialLink>(junction, demands[i], LinkAddonType::none);
    }
    for (const auto& demand : demands) link<NaturalLink>(demand, drain, LinkAddonType::none);
    reservoir(0)->setIsHydrologicalStateSystem(true);
    scenario->setPumpingCostsConfiguration({1.25, 0.0, 3.5, -999.0});
    markPriorities();
  }

  // The settings of element id as T.
  template <typename T = PrioritySettings>
  std::shared_ptr<T> settings(unsigned int id) const {
    return Scenario::getSettings<T>(scenario->getElement(id), scenario->getSettingsManager());
  }
  std::shared_ptr<PriorityReservoirSettings> reservoir(unsigned int id) const {
    return settings<PriorityReservoirSettings>(id);
  }
  HydrologicalStateConfiguration& states() const {
    return *scenario->getHydrologicalStateConfiguration();
  }
  const Interval& interval() const { return scenario->getInterval(); }

  // Gives every reservoir and demand a priority, state priorities and goals of its own; run
  // again after a change of the number of states.
  void markPriorities() {
    for (unsigned int id = 0; id <= 8; ++id) {
      const auto each = std::dynamic_pointer_cast<PrioritySettings>(
          scenario->getSettingsManager().getSettings(id));
      if (!each) continue;
      each->setPriority(id + 1);
      for (unsigned int state = 0; state < each->getPrioritySeries().size(); ++state) {
        each->setPriorityOfPairPrioritySerie(10 * id + state, state);
        each->getPrioritySeries()[state].second->fill(0.5 + id + 0.25 * state);
      }
    }
  }

  // Zones of shares 0.2, 0.3 and 0.4 for the first reservoir and one zone of the whole volume
  // for the second, each with a priority and a target of its own.
  void addZones() {
    const std::vector<std::vector<double>> shares = {{0.2, 0.3, 0.4}, {1.0}};
    for (unsigned int id = 0; id < shares.size(); ++id) {
      const auto each = reservoir(id);
      for (unsigned int index = 0; index < shares[id].size(); ++index) {
        each->addDefaultHydrologicalZone(interval());
        each->setValueOfHydrologicalZone(shares[id][index], index);
        each->setPriorityOfHydrologicalZone(4 * (index + 1) + id, index);
        each->getVectorOfHydrologicalZones()[index].serie->fill(0.1 * (index + 1) + id);
      }
    }
  }

  // Two zones in every month for the first reservoir, with shares, priorities and targets that
  // change from month to month; the second reservoir keeps no monthly zones.
  void addMonthlyZones() {
    states().setNumOfStatesMonthly(2);
    const auto each = reservoir(0);
    each->initHydrologicalZoneMonthly(2, interval());
    for (unsigned int month = 0; month < 12; ++month) {
      for (unsigned int index = 0; index < 2; ++index) {
        each->setValueOfHydrologicalZoneMonthly(0.125 * (index + 1) + 0.015625 * month, index,
                                                month);
        each->setPriorityOfHydrologicalZoneMonthly(month + 50 * index, index, month);
        each->getVectorOfHydrologicalZonesMonthly(month)[index].serie->fill(0.01 * month + index);
      }
    }
  }

  std::shared_ptr<PriorityScenario> scenario;

 private:
  std::shared_ptr<Node> node(ElementType type) {
    auto made = std::static_pointer_cast<Node>(ElementFactory::make(type));
    scenario->addElement(made, true);
    return made;
  }

  template <typename T>
  std::shared_ptr<T> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                          LinkAddonType addon) {
    auto made = LinkFactory<T>::make(up, down, "", Vocabulary::of(addon));
    scenario->addElement(made, true);
    return made;
  }
};

// One priority project for each way of taking the goals from the water available.
inline std::vector<std::shared_ptr<PriorityScenario>> everyHydrologicalStateType() {
  using T = HydrologicalStateType;
  std::vector<std::shared_ptr<PriorityScenario>> scenarios;
  const std::vector<T> types = {T::none, T::standard, T::perReservoir, T::perReservoirMonthly};
  for (unsigned int index = 0; index < types.size(); ++index) {
    PriorityProjectBuilder project(index + 1, Vocabulary::of(types[index]).getName());
    project.states().setCurrentHydrologicalStateType(Vocabulary::of(types[index]));
    if (types[index] == T::standard) {
      project.states().setNumOfStates(3, project.scenario);
      project.states().setXValues({0.25, 0.5});
      project.markPriorities();
    }
    if (types[index] == T::perReservoir) project.addZones();
    if (types[index] == T::perReservoirMonthly) project.addMonthlyZones();
    scenarios.push_back(project.scenario);
  }
  return scenarios;
}

}  // namespace projectfile
