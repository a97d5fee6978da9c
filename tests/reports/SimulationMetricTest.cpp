#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "common/Calendar.h"
#include "core/Demand.h"
#include "core/ResultFactory.h"
#include "operation/ExecutionMethodFactoryByType.h"
#include "reports/LoadedDataProducerOfSimulationMetrics.h"
#include "reports/SimulationMetricsAbstractFactory.h"
#include "reports/SimulationMetricsEnumFactoryByType.h"
#include "reports/SimulationMetricsFactoryToDemand.h"
#include "reports/SimulationMetricsFactoryToReservoir.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"

namespace {

using T = SimulationMetricsTypeDefinition;
using Category = ElementGroup::ElementCategoriesEnum;

constexpr double kEmpty = -999.0;

bool isDemandKind(T type) {
  const auto keys = SimulationMetricsFactoryToDemand::keys();
  return std::find(keys.begin(), keys.end(), type) != keys.end();
}

std::shared_ptr<SimulationMetric> metricOf(T type) {
  const auto kind = SimulationMetricsEnumFactoryByType::make(type);
  return isDemandKind(type) ? SimulationMetricsFactoryToDemand::make(*kind)
                            : SimulationMetricsFactoryToReservoir::make(*kind);
}

// January to April 2001: 31, 28, 31 and 30 days, so 1 m³/s is 2.6784, 2.4192, 2.6784 and 2.592
// hm³. R1 feeds the human demand D1 and the reservoir R2; R2 feeds the irrigation demand D2
// and a drain, which always "fails" (it demands 99999 m³/s) but is no consumer: counted, it would
// bring every reliability of R2 to 0. Results are written by hand.
struct FourMonths {
  NetworkBuilder net{
      Interval(Date(2001, 1, 1), Date(2001, 4, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Reservoir> r1 = reservoir(10.0, 100.0);
  std::shared_ptr<Reservoir> r2 = reservoir(12.0, 50.0);
  std::shared_ptr<Node> d1 = net.node(ElementType::humanDemand);
  std::shared_ptr<Node> d2 = net.node(ElementType::irrigationDemand);
  std::shared_ptr<Node> drain = net.node(ElementType::drain);

  FourMonths() {
    net.link(r1, d1);
    net.link(r1, r2);
    net.link(r2, d2);
    net.link(r2, drain);
    net.scenario->getExecutionMethod()->setWindowSize(4);
    net.scenario->createResults();
    // D1 fails in January, March and April.
    put(d1, SerieType::supplyFailure, {1, 0, 1, 1});
    put(d1, SerieType::attendedDemand, {2, 4, 1, 3});
    put(d1, SerieType::targetDemand, {4, 4, 4, 4});
    put(d1, SerieType::supplyShortage, {2, 0, 3, 1});
    put(d2, SerieType::supplyFailure, {0, 0, 0, 0});
    put(d2, SerieType::attendedDemand, {5, 5, 5, 5});
    put(d2, SerieType::targetDemand, {5, 5, 5, 5});
    put(d2, SerieType::supplyShortage, {0, 0, 0, 0});
    put(drain, SerieType::supplyFailure, {1, 1, 1, 1});
    // R1: minimum 10, maximum 100, targets 60, 60, 60, 20 hm³; the April spill is below 1e-6.
    put(r1, SerieType::finalVolume, {50, 8, 5, 30});
    put(r1, SerieType::targetVolume, {0.6, 0.6, 0.6, 0.2});
    put(r1, SerieType::spilledVolume, {2.5, 0, 0, 1e-7});
    // R2: minimum 12, maximum 50, target 25 hm³: below both in February only.
    put(r2, SerieType::finalVolume, {40, 10, 40, 40});
    put(r2, SerieType::targetVolume, {0.5, 0.5, 0.5, 0.5});
    put(r2, SerieType::spilledVolume, {0, 0, 0, 0});
  }

  std::shared_ptr<Reservoir> reservoir(double minVol, double maxVol) {
    auto created = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    created->getReservoirInfo().minVol = minVol;
    created->getReservoirInfo().maxVol = maxVol;
    return created;
  }

  void put(const std::shared_ptr<Element>& element, SerieType type,
           const std::vector<double>& values, unsigned int window = 0) const {
    const Interval& interval = element->getOutputSerie(type, window)->getInterval();
    Date date = interval.getBegin();
    for (double value : values) {
      element->getOutputSerie(type, window)->setValue(date, value);
      date += Calendar::incInterval(date, interval);
    }
  }

  double value(T type, const std::shared_ptr<Element>& element, unsigned int run = 0) const {
    return metricOf(type)->calculate(element, net.scenario, run)->getNumber();
  }
};

struct Expected {
  T type;
  std::string element;
  double value;
};

}  // namespace

// Each kind belongs to exactly one factory, which names it as the vocabulary does; the other
// factory refuses it with its own text. Durations in months are whole numbers.
TEST(SimulationMetricsFactories, EveryKindHasOneFactoryAndItsTypeOfNumber) {
  const std::set<T> wholeNumbers = {T::maxTimeUnderNeededDemand, T::maxTimeOfEmptying,
                                    T::maxTimeUnderTargetVolumeInMonths};
  for (T type : SimulationMetricsEnumFactoryByType::keys()) {
    SCOPED_TRACE(static_cast<int>(type));
    const auto kind = SimulationMetricsEnumFactoryByType::make(type);
    EXPECT_EQ(kind->getType(), type);
    const auto metric = metricOf(type);
    EXPECT_EQ(metric->getName(), kind->getName());
    EXPECT_EQ(metric->getReturnType(),
              wholeNumbers.count(type) ? TypeOfData::intType : TypeOfData::doubleType);
    if (isDemandKind(type)) {
      EXPECT_THROW_TEXT(
          SimulationMetricsFactoryToReservoir::make(*kind), std::invalid_argument,
          "SimulationMetricsFactoryToReservoir::make(): invalid simulationMetricsEnum");
    } else {
      EXPECT_THROW_TEXT(SimulationMetricsFactoryToDemand::make(*kind), std::invalid_argument,
                        "SimulationMetricsFactoryToDemand::make(): invalid simulationMetricsEnum");
    }
  }
  EXPECT_THROW_TEXT(SimulationMetricsEnumFactoryByType::make(static_cast<T>(22)),
                    std::invalid_argument,
                    "SimulationMetricsEnumFactoryByType::make(): invalid simulationMetricsType");
}

TEST(SimulationMetricsFactories, AbstractFactoryGivesTheFactoryOfACategory) {
  const auto demands = SimulationMetricsAbstractFactory::make(Category::demand);
  const auto reservoirs = SimulationMetricsAbstractFactory::make(Category::reservoir);
  EXPECT_NE(std::dynamic_pointer_cast<SimulationMetricsFactoryToDemand>(demands), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<SimulationMetricsFactoryToReservoir>(reservoirs), nullptr);
  EXPECT_EQ(demands->kinds(), SimulationMetricsFactoryToDemand::keys());
  EXPECT_EQ(reservoirs->kinds(), SimulationMetricsFactoryToReservoir::keys());
  for (Category category : {Category::junction, Category::links, Category::basin}) {
    EXPECT_THROW_TEXT(SimulationMetricsAbstractFactory::make(category), std::invalid_argument,
                      "SimulationMetricsAbstractFactory::make(): invalid elementCategory");
  }
}

TEST(SimulationMetrics, ComputedByHandOverFourMonths) {
  FourMonths m;
  // Flow-days of D1: provided 2*31 + 4*28 + 1*31 + 3*30 = 295, required 4*120 = 480; D runs from
  // 1 January to 30 April, 119 days. The failed months hold 31 + 31 + 30 = 92 days and provided
  // 2*31 + 1*31 + 3*30 = 183 flow-days.
  const std::vector<Expected> table = {
      {T::totalTimeUnderNeededDemand, "D1", 3},
      {T::totalTimeThatDemandIsMet, "D1", 1},
      {T::maxTimeUnderNeededDemand, "D1", 2},  // March and April
      {T::frequencyUnderNeededDemand, "D1", 75},
      {T::accumulatedVolumeOfDeficits, "D1", 2 * 2.6784 + 3 * 2.6784 + 1 * 2.592},
      {T::minimumFlowProvided, "D1", 1},
      {T::averageFlowRateProvided, "D1", 295.0 / 119},
      {T::requiredAverageDemand, "D1", 480.0 / 119},
      {T::averageFlowRateProvidedAsAPercentageOfRequiredDemand, "D1", 295.0 / 480 * 100},
      {T::averageFlowRateProvidedWhenFailsOccur, "D1", 183.0 / 92},
      {T::averageFlowRateProvidedWhenFailsOccur, "D2", kEmpty},  // never fails
      {T::totalTimeThatDemandIsMet, "D2", 4},
      // R1 ends below its minimum 10 in February and March, below its targets in January to
      // March (50 < 60, 8 < 60, 5 < 60; April 30 > 20), and spills only in January.
      {T::emptyingFrequency, "R1", 50},
      {T::maxTimeOfEmptying, "R1", 2},
      {T::frequencyUnderTargetVolumeInPercentage, "R1", 75},
      {T::maxTimeUnderTargetVolumeInMonths, "R1", 3},  // a count, although January-March runs
      {T::spillFrequency, "R1", 25},
      {T::volumeAccumulatedSpill, "R1", 2.5},
      // Below R1, some consumer failed in January, March and April (D1); R1 itself is below its
      // target in January to March and R2 in February: one good month for demands (February),
      // one for reservoirs (April), none for both.
      {T::reliabilityToDemands, "R1", 25},
      {T::reliabilityToReservoirs, "R1", 25},
      {T::reliabilityToReservoirsAndDemands, "R1", 0},
      // b = (T, F, T, T): one recovery (A = 1), two changes (B = 2), F = 3 of n = 4.
      {T::resilienceOfType1, "R1", (1.0 / 2) / (3.0 / 4)},
      {T::resilienceOfType2, "R1", 1.0 / 3},
      // Shortage over demand of D1's failures: 2/4, 3/4, 1/4 -> (50 + 75 + 25) / 3.
      {T::vulnerability, "R1", 50},
      // Below R2 only D2 (never failing) and the drain, which is no consumer.
      {T::reliabilityToDemands, "R2", 100},
      // R2, the last reservoir, answers for its own target: below it in February only.
      {T::reliabilityToReservoirs, "R2", 75},
      {T::reliabilityToReservoirsAndDemands, "R2", 75},
      {T::resilienceOfType1, "R2", kEmpty},
      {T::resilienceOfType2, "R2", kEmpty},
      {T::vulnerability, "R2", kEmpty},
      {T::emptyingFrequency, "R2", 25},
      {T::spillFrequency, "R2", 0},
  };
  const std::map<std::string, std::shared_ptr<Element>> elements = {
      {"D1", m.d1}, {"D2", m.d2}, {"R1", m.r1}, {"R2", m.r2}};
  for (const Expected& row : table) {
    SCOPED_TRACE(metricOf(row.type)->getName() + " of " + row.element);
    EXPECT_NEAR(m.value(row.type, elements.at(row.element)), row.value, 1e-9);
  }
}

TEST(SimulationMetrics, AReservoirSittingOnItsMinimumIsEmptied) {
  FourMonths m;
  // R1's minimum is 10: January on it, February below, March within 1e-6 above it, April above.
  m.put(m.r1, SerieType::finalVolume, {10, 8, 10 + 5e-7, 30});
  EXPECT_EQ(m.value(T::emptyingFrequency, m.r1), 75.0);  // 3 of 4 months
  EXPECT_EQ(m.value(T::maxTimeOfEmptying, m.r1), 3.0);   // January to March
  // R2 (minimum 12) exactly on its minimum all along: emptied throughout.
  m.put(m.r2, SerieType::finalVolume, {12, 12, 12, 12});
  EXPECT_EQ(m.value(T::emptyingFrequency, m.r2), 100.0);
  EXPECT_EQ(m.value(T::maxTimeOfEmptying, m.r2), 4.0);
}

TEST(SimulationMetrics, ADisabledLinkHidesWhatIsBelowIt) {
  FourMonths m;
  // With the link R1 -> R2 off, R1 answers only for itself and D1: R2's February no longer
  // counts, and R1's own target (below January to March) leaves April good.
  for (const auto& link : m.r1->getDownstreamLinks()) {
    if (link->getDownstream() == m.r2) link->setEnabled(false);
  }
  EXPECT_EQ(m.value(T::reliabilityToReservoirs, m.r1), 25.0);
  // With R1 back above its targets, only R2 below it could fail it, and it is cut off.
  m.put(m.r1, SerieType::finalVolume, {90, 90, 90, 90});
  EXPECT_EQ(m.value(T::reliabilityToReservoirs, m.r1), 100.0);
}

TEST(SimulationMetrics, ResilienceOfAllAndAlternatingFailures) {
  FourMonths m;
  // All four months failed below R2: no recovery, so type 2 is 0 and type 1 (no change) empty.
  m.put(m.d2, SerieType::supplyFailure, {1, 1, 1, 1});
  EXPECT_EQ(m.value(T::resilienceOfType2, m.r2), 0.0);
  EXPECT_EQ(m.value(T::resilienceOfType1, m.r2), kEmpty);
  EXPECT_EQ(m.value(T::reliabilityToDemands, m.r2), 0.0);
  // (T, F, T, F): A = 2, B = 3, F = 2 -> type 1 (2/3) / (2/4), type 2 2/2.
  m.put(m.d2, SerieType::supplyFailure, {1, 0, 1, 0});
  EXPECT_NEAR(m.value(T::resilienceOfType1, m.r2), (2.0 / 3) / (2.0 / 4), 1e-12);
  EXPECT_NEAR(m.value(T::resilienceOfType2, m.r2), 1.0, 1e-12);
}

TEST(SimulationMetrics, OneDateWindowComparesNoPairs) {
  NetworkBuilder net(
      Interval(Date(2001, 3, 1), Date(2001, 3, 1), Vocabulary::of(Periodicity::monthly)));
  auto reservoir = net.node(ElementType::reservoir);
  auto demand = net.node(ElementType::humanDemand);
  net.link(reservoir, demand);
  net.scenario->getExecutionMethod()->setWindowSize(1);
  net.scenario->createResults();
  demand->getOutputSerie(SerieType::supplyFailure, 0)->setValue(Date(2001, 3, 1), 1.0);
  const auto calc = [&](T type, const std::shared_ptr<Element>& element) {
    return metricOf(type)->calculate(element, net.scenario, 0)->getNumber();
  };
  // A = B = 0 with F = n = 1.
  EXPECT_EQ(calc(T::resilienceOfType2, reservoir), 0.0);
  EXPECT_EQ(calc(T::resilienceOfType1, reservoir), kEmpty);
  EXPECT_EQ(calc(T::frequencyUnderNeededDemand, demand), 100.0);
  EXPECT_EQ(calc(T::maxTimeUnderNeededDemand, demand), 1.0);
  // "Demanda atendida" was never written: its one value reads as missing.
  EXPECT_EQ(calc(T::minimumFlowProvided, demand), kEmpty);
}

TEST(SimulationMetrics, EmptyCellForAnotherClassOrRunAndFailuresOfMissingResults) {
  FourMonths m;
  for (T type : SimulationMetricsEnumFactoryByType::keys()) {
    SCOPED_TRACE(static_cast<int>(type));
    const auto metric = metricOf(type);
    const auto& other = isDemandKind(type) ? std::shared_ptr<Element>(m.r1) : m.d1;
    const auto cell = metric->calculate(other, m.net.scenario, 0);
    EXPECT_TRUE(cell->isEmpty());
    EXPECT_EQ(cell->getTypeOfData(), metric->getReturnType());
    const auto& own = isDemandKind(type) ? m.d1 : std::shared_ptr<Element>(m.r1);
    EXPECT_TRUE(metric->calculate(own, m.net.scenario, 1)->isEmpty());  // a continuous run has one
  }
  // A downstream demand whose results lack "Falha no atendimento".
  m.d2->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, ElementType::junction, ScenarioType::ruleSimulator}, 1));
  EXPECT_THROW_TEXT(m.value(T::reliabilityToDemands, m.r2), std::invalid_argument,
                    "Invalid serie type!");
  m.d1->clearOutputSeries();
  EXPECT_THROW_TEXT(m.value(T::minimumFlowProvided, m.d1), std::invalid_argument,
                    "Invalid index value!");
  // Windows longer than the scenario cannot be cut.
  m.net.scenario->getExecutionMethod()->setWindowSize(5);
  EXPECT_THROW_TEXT(m.value(T::emptyingFrequency, m.r1), std::invalid_argument,
                    "makeIntervals() - interval period < window size");
}

TEST(SimulationMetrics, EachWindowOfAWindowedRunIsMeasuredApart) {
  FourMonths m;
  const Interval years(Date(2001, 1, 1), Date(2002, 12, 1), Vocabulary::of(Periodicity::monthly));
  auto& scenario = *m.net.scenario;
  scenario.setExecutionMethod(ExecutionMethodFactoryByType::make(ExecutionType::windowed, years));
  scenario.setInterval(years);
  scenario.getExecutionMethod()->setWindowSize(3);
  scenario.getExecutionMethod()->initializeYearsWindow(years, 1, true);
  scenario.createResults();
  // Windows January-March 2001 and 2002: 90 days each, D = 89.
  m.put(m.d1, SerieType::attendedDemand, {1, 1, 1}, 0);
  m.put(m.d1, SerieType::attendedDemand, {2, 2, 2}, 1);
  EXPECT_NEAR(m.value(T::averageFlowRateProvided, m.d1, 0), 90.0 / 89, 1e-12);
  EXPECT_NEAR(m.value(T::averageFlowRateProvided, m.d1, 1), 180.0 / 89, 1e-12);
  EXPECT_EQ(m.value(T::averageFlowRateProvided, m.d1, 2), kEmpty);
}

TEST(LoadedDataProducerOfSimulationMetrics, TableOfTwoDemandsAndTwoReservoirs) {
  FourMonths m;
  m.d1->setName("Cidade");
  m.d2->setName("Perímetro irrigado");
  const auto kinds = [](std::initializer_list<T> types) {
    std::vector<std::shared_ptr<SimulationMetricsEnum>> result;
    for (T type : types) result.push_back(SimulationMetricsEnumFactoryByType::make(type));
    return result;
  };
  const LoadedData demands =
      LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
          Category::demand, {m.d1, m.d2},
          kinds({T::maxTimeUnderNeededDemand, T::frequencyUnderNeededDemand}), m.net.scenario, 0);
  ASSERT_EQ(demands.getColumns().size(), 3u);
  EXPECT_EQ(demands.getColumns()[0].name, "Elemento");
  EXPECT_EQ(demands.getColumns()[0].typeOfData, TypeOfData::stringType);
  EXPECT_EQ(demands.getColumns()[1].name, "Tempo máximo abaixo da demanda necessária (meses)");
  EXPECT_EQ(demands.getColumns()[1].typeOfData, TypeOfData::intType);
  EXPECT_EQ(demands.getColumns()[2].name, "Frequência abaixo da demanda necessária (%)");
  ASSERT_EQ(demands.getRows().size(), 2u);
  EXPECT_EQ(demands.getCell(0, 0)->toString(), "Cidade");
  EXPECT_EQ(demands.getCell(0, 1)->toString(), "2");
  EXPECT_EQ(demands.getCell(0, 2)->getNumber(), 75.0);
  EXPECT_EQ(demands.getCell(1, 0)->toString(), "Perímetro irrigado");
  EXPECT_EQ(demands.getCell(1, 2)->getNumber(), 0.0);

  const LoadedData reservoirs =
      LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
          Category::reservoir, {m.r1, m.r2, m.d1},
          kinds({T::reliabilityToDemands, T::volumeAccumulatedSpill}), m.net.scenario, 0);
  EXPECT_EQ(reservoirs.getColumns()[2].name, "Volume acumulado vertido (hm³)");
  EXPECT_EQ(reservoirs.getCell(0, 1)->getNumber(), 25.0);
  EXPECT_EQ(reservoirs.getCell(1, 1)->getNumber(), 100.0);
  EXPECT_EQ(reservoirs.getCell(0, 2)->getNumber(), 2.5);
  EXPECT_TRUE(reservoirs.getCell(2, 1)->isEmpty());  // a demand in a reservoir table

  EXPECT_THROW_TEXT(LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
                        Category::reservoir, {m.r1},
                        kinds({T::vulnerability, T::minimumFlowProvided}), m.net.scenario, 0),
                    std::invalid_argument,
                    "SimulationMetricsFactoryToReservoir::make(): invalid simulationMetricsEnum");
}
