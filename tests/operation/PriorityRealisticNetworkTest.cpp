#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "common/PeriodWalker.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/PrioritySettings.h"
#include "scenario/PriorityScenario.h"
#include "support/RealisticNetwork.h"
#include "support/WaterBalance.h"

namespace {

// The São Francisco network of the rule tests, operated by priorities. A demand never comes
// after one below it: the tributary's livestock and industry first, then supply and irrigation on
// the main stem; the reservoirs from upstream down aim at 60 to 80 % of their capacity, or at
// their minimum where that is higher, and the mouth takes what is left.
class PriorityRealisticNetwork {
 public:
  explicit PriorityRealisticNetwork(const Interval& interval)
      : rules(interval),
        scenario(std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                    interval, "Prioridades")) {
    scenario->addElementsKeepingIDs(rules.net.scenario->getElements(), false);
    // The model has no row for a basin: its link would bring the mouth all it asks for.
    for (const auto& basin : ElementsFilter::filterByNodes(scenario->getElements())) {
      if (basin->getType() != ElementType::basin) continue;
      for (const auto& link : basin->getDownstreamLinks()) link->setEnabled(false);
    }
    const std::map<ElementType, unsigned int> demandPriorities = {
        {ElementType::animalDemand, 1},
        {ElementType::industrialDemand, 2},
        {ElementType::humanDemand, 3},
        {ElementType::irrigationDemand, 4},
        {ElementType::drain, 99}};
    for (const auto& [type, priority] : demandPriorities) {
      for (const auto& demand : ElementsFilter::filterByType(scenario->getElements(), {type})) {
        settings(demand)->setPriority(priority);
      }
    }
    for (std::size_t i = 0; i < rules.reservoirs.size(); ++i) {
      const auto& reservoir = rules.reservoirs[i];
      settings(reservoir)->setPriority(10 + 5 * static_cast<unsigned int>(i));
      const ReservoirInfo& info = reservoir->getReservoirInfo();
      reservoir->getInputSerie(SerieType::targetVolume)
          ->fill(std::max(0.6 + 0.05 * static_cast<double>(i % 5), info.minVol / info.maxVol));
    }
  }

  std::shared_ptr<PrioritySettings> settings(const std::shared_ptr<Element>& element) const {
    return Scenario::getSettings<PrioritySettings>(element, scenario->getSettingsManager());
  }

  RealisticNetwork rules;
  std::shared_ptr<PriorityScenario> scenario;
};

// For every reservoir and date: initial + inflows + rain - evaporation - release - spill = final,
// never below the minimum: the mouth draws every reservoir down to its goal, so none is ever
// clamped at its capacity. For every link: inflow = effluent + loss. No demand gets more than its
// target.
void expectConservation(const PriorityRealisticNetwork& network) {
  const Scenario& scenario = *network.scenario;
  std::size_t checked = 0, spills = 0;
  PeriodWalker::forEach(scenario.getInterval(), [&](const Date& date) {
    for (const auto& reservoir : network.rules.reservoirs) {
      const auto value = [&](SerieType type) {
        return reservoir->getOutputSerie(type, 0)->getValue(date);
      };
      const double final = value(SerieType::finalVolume);
      ASSERT_NEAR(waterBalanceOf(*reservoir, date).final, final, 1e-6)
          << reservoir->getName() << " " << date.toString("%d/%m/%Y");
      ASSERT_GE(final, reservoir->getReservoirInfo().minVol - 1e-6) << reservoir->getName();
      ++checked;
      if (value(SerieType::spilledVolume) > 0.0) ++spills;
    }
    for (const auto& link : ElementsFilter::filterByEnabledLinks(scenario.getElements())) {
      const auto value = [&](SerieType type) {
        return link->getOutputSerie(type, 0)->getValue(date);
      };
      ASSERT_NEAR(value(SerieType::inflow),
                  value(SerieType::outflow) + value(SerieType::transitLoss), 1e-9)
          << link->getName();
    }
    for (const auto& demand :
         ElementsFilter::filterByType(scenario.getElements(), ElementSets::consumerDemands())) {
      ASSERT_LE(demand->getOutputSerie(SerieType::attendedDemand, 0)->getValue(date),
                demand->getOutputSerie(SerieType::targetDemand, 0)->getValue(date) + 1e-6);
    }
  });
  EXPECT_EQ(checked, scenario.getInterval().period() * network.rules.reservoirs.size());
  EXPECT_GT(spills, 0u);
}

}  // namespace

TEST(PriorityRealisticNetwork, ThirtyYearsMonthlyConserveWater) {
  PriorityRealisticNetwork network(
      Interval(Date(1931, 1, 1), Date(1960, 12, 1), Vocabulary::of(Periodicity::monthly)));
  ASSERT_TRUE(network.scenario->run(nullptr));
  expectConservation(network);
}
