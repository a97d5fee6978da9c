#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "common/PeriodWalker.h"
#include "core/ElementsFilter.h"
#include "support/RealisticNetwork.h"
#include "support/WaterBalance.h"

namespace {

// For every reservoir and date where the final volume was not clamped: initial + inflows + rain
// - evaporation - release - spill = final. For every link: inflow = effluent + loss.
void expectConservation(const RealisticNetwork& network) {
  const Scenario& scenario = *network.net.scenario;
  std::size_t checked = 0, spills = 0;
  PeriodWalker::forEach(scenario.getInterval(), [&](const Date& date) {
    for (const auto& reservoir : network.reservoirs) {
      const auto value = [&](SerieType type) {
        return reservoir->getOutputSerie(type, 0)->getValue(date);
      };
      const double final = value(SerieType::finalVolume);
      const double maxVol = reservoir->getReservoirInfo().maxVol;
      if (final == 0.0 || (std::fabs(final - maxVol) < 1e-3 && final != maxVol)) continue;
      ASSERT_NEAR(waterBalanceOf(*reservoir, date).final, final, 1e-6)
          << reservoir->getName() << " " << date.toString("%d/%m/%Y");
      ++checked;
      if (value(SerieType::spilledVolume) > 0.0) ++spills;
    }
    for (const auto& link : ElementsFilter::filterByLinks(scenario.getElements())) {
      const auto value = [&](SerieType type) { return link->getOutputSerie(type, 0)->getValue(date); };
      ASSERT_NEAR(value(SerieType::inflow), value(SerieType::outflow) + value(SerieType::transitLoss),
                  1e-9)
          << link->getName();
    }
  });
  EXPECT_GT(checked, scenario.getInterval().period() * network.reservoirs.size() / 2);
  EXPECT_GT(spills, 0u);
  for (const auto& element : scenario.getElements()) {
    for (const auto& serie : element->getVectorOfSeries(0)) {
      for (const auto& entry : serie->getMapOfJulianToValues()) {
        ASSERT_TRUE(std::isfinite(entry.second)) << element->getName() << " " << serie->getName();
      }
    }
  }
}

}  // namespace

TEST(RealisticNetwork, FortyYearsMonthlyConserveWater) {
  RealisticNetwork network(Interval(Date(1931, 1, 1), Date(1970, 12, 1),
                                    Vocabulary::of(Periodicity::monthly)));
  std::set<int> ruleTypes;
  for (const auto& reservoir : network.reservoirs) {
    ruleTypes.insert(Scenario::getSettings<ReservoirRuleSettings>(
                         reservoir, network.net.scenario->getSettingsManager())
                         ->getRule()
                         ->getType()
                         .getId());
  }
  EXPECT_EQ(ruleTypes, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  expectConservation(network);
}

TEST(RealisticNetwork, TwoYearsDailyConserveWater) {
  RealisticNetwork network(Interval(Date(1951, 1, 1), Date(1952, 12, 31),
                                    Vocabulary::of(Periodicity::daily)));
  ASSERT_TRUE(network.net.scenario->run(nullptr));
  expectConservation(network);
}
