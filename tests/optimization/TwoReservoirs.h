#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "common/PeriodWalker.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "optimization/ObjectiveFunctionFactory.h"
#include "optimization/RuleOptimizationScenario.h"
#include "rules/OptConstReleaseRule.h"
#include "support/NetworkBuilder.h"

namespace optimisationtest {

// Rows of (level m, area km², volume hm³).
inline const std::vector<std::vector<double>> kCav = {
    {100, 0, 0}, {101, 2, 10}, {102, 5, 60}, {103, 9, 150}};

inline const Interval kTwoYears(Date(2001, 1, 1), Date(2002, 12, 1),
                                Vocabulary::of(Periodicity::monthly));

// Two independent reservoirs, each feeding a demand of 8 m³/s, under a constant rule whose release
// the optimiser chooses between 0 and 20 m³/s. Inflows are seasonal: a wet first half of the year
// and a dry second half, so that releasing more meets the demand now and fails it later, while a
// fuller lake loses more to its 100 mm of monthly evaporation: the two objectives pull apart.
struct TwoReservoirs {
  explicit TwoReservoirs(std::shared_ptr<RuleScenario> target) : net(std::move(target)) {
    const auto drain = net.node(ElementType::drain);
    const double wet[] = {12.0, 10.0};
    const double dry[] = {2.0, 5.0};
    for (int i = 0; i < 2; ++i) {
      auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
      auto demand = net.node(ElementType::humanDemand);
      auto river = net.link(reservoir, demand);
      auto outlet = net.link(demand, drain);
      ReservoirInfo& info = reservoir->getReservoirInfo();
      info.cav = kCav;
      info.initVol = 60.0;
      info.minVol = 10.0;
      info.maxVol = 150.0;
      PeriodWalker::forEach(kTwoYears, [&](const Date& date) {
        reservoir->getInputSerie(SerieType::naturalIncrementalFlow)
            ->setValue(date, date.getMonth() <= 6 ? wet[i] : dry[i]);
      });
      reservoir->getInputSerie(SerieType::precipitation)->fill(0.0);
      reservoir->getInputSerie(SerieType::evaporation)->fill(100.0);
      demand->getInputSerie(SerieType::demand)->fill(8.0);
      net.allocation(reservoir, {{double(reservoir->getId()), double(river->getId())}, {100, 100}});
      net.allocation(demand, {{double(demand->getId()), double(outlet->getId())}, {100, 100}});
      auto rule = std::make_shared<OptConstReleaseRule>();
      rule->setLowerAndUpperRelease(0.0, 20.0);
      rule->setToOpt(true);
      Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
          ->setRule(rule);
      reservoirs.push_back(reservoir);
      demands.push_back(demand);
    }
  }

  // The two objectives: the demands' shortage volume and the reservoirs' evaporation, both
  // minimised.
  std::vector<double> objectives() const {
    return {ObjectiveFunctionFactory::make(ObjectiveFunctionType::shortageVolume, true, demands)
                ->getValue(0),
            ObjectiveFunctionFactory::make(ObjectiveFunctionType::evaporationLoss, true, reservoirs)
                ->getValue(0)};
  }

  NetworkBuilder net;
  std::vector<std::shared_ptr<Element>> reservoirs;
  std::vector<std::shared_ptr<Element>> demands;
};

// A rule optimisation of the two-reservoir system by type, with its swarm sized.
inline std::shared_ptr<RuleOptimizationScenario> optimisation(OptimizationAlgorithmType type,
                                                              std::uint32_t swarm,
                                                              std::uint32_t archive,
                                                              std::uint32_t iterations) {
  auto scenario = std::make_shared<RuleOptimizationScenario>(1, kTwoYears, "Otimização");
  TwoReservoirs system(scenario);
  auto& execution = scenario->getExecutionOptimization();
  execution.cleanObjectiveFunctions();
  scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::shortageVolume, system.demands);
  scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::evaporationLoss, system.reservoirs);
  execution.configureAlgorithm(type);
  auto& parameters = static_cast<PSOParameters&>(*execution.getAlgorithmParameters());
  parameters.swarmSize = swarm;
  parameters.maxIterations = iterations;
  if (auto* mpso = dynamic_cast<MPSOParameters*>(&parameters)) mpso->archiveSize = archive;
  return scenario;
}

}  // namespace optimisationtest
