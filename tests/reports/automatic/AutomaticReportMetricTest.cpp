#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "common/Calendar.h"
#include "core/SeriesContainers.h"
#include "reports/automatic/AutomaticReportExpressionAnalyzerUtils.h"
#include "reports/automatic/FactoryOfElementTypeToVectorOfReportMetricTypeEnum.h"
#include "reports/automatic/FactoryOfReportMetricTypeToReportMetric.h"
#include "reports/automatic/FactoryOfReportSerieTypeToReportSerie.h"
#include "support/ExpectThrow.h"
#include "support/NetworkBuilder.h"
#include "vocabulary/AutomaticReportSerieTypeEnumFactory.h"
#include "vocabulary/ReportMetricTypeEnumFactory.h"

namespace {

using M = ReportMetricType;

// January to April 2001: 31, 28, 31 and 30 days, so 1 m³/s is 2.6784, 2.4192, 2.6784 and 2.592
// hm³. The reservoir R feeds the human demand D1 through L1 and the junction
// "Juazeiro-Petrolina", which feeds the drain Foz. Results are written by hand.
struct FourMonths {
  NetworkBuilder net{
      Interval(Date(2001, 1, 1), Date(2001, 4, 1), Vocabulary::of(Periodicity::monthly))};
  std::shared_ptr<Node> r = named(net.node(ElementType::reservoir), "R");
  std::shared_ptr<Node> d1 = named(net.node(ElementType::humanDemand), "D1");
  std::shared_ptr<Node> junction = named(net.node(ElementType::junction), "Juazeiro-Petrolina");
  std::shared_ptr<Node> foz = named(net.node(ElementType::drain), "Foz");
  std::shared_ptr<Link> l1 = named(net.link(r, d1), "L1");

  FourMonths() {
    net.link(r, junction);
    net.link(junction, foz);
    std::static_pointer_cast<Reservoir>(r)->getReservoirInfo().minVol = 10.0;
    net.scenario->getExecutionMethod()->setWindowSize(4);
    net.scenario->createResults();
    put(r, SerieType::releasedFlow, {10, 20, 0, 5});
    put(r, SerieType::finalVolume, {50, 10, 5, 8});
    put(r, SerieType::spilledVolume, {2.5, 0, 0, 1e-7});  // April's spill is within 1e-6 of 0
    put(d1, SerieType::supplyShortage, {2, 0, 3, -999});  // April's is missing
    put(d1, SerieType::supplyFailure, {1, 0, 0, 1e-7});
    put(foz, SerieType::supplyFailure, {1, 1, 1, 1});
    put(junction, SerieType::outflow, {-999, -999, 7, -999});
    put(l1, SerieType::transitLoss, {1, 2, 3, 4});
    Date date(2001, 1, 1);
    for (double evaporation : {100, 120, 140, 160}) {
      r->getInputSerie(SerieType::evaporation)->setValue(date, evaporation);
      date += Calendar::incInterval(date, net.scenario->getInterval());
    }
  }

  template <typename E>
  static std::shared_ptr<E> named(std::shared_ptr<E> element, const std::string& name) {
    element->setName(name);
    return element;
  }

  void put(const std::shared_ptr<Element>& element, SerieType type,
           const std::vector<double>& values) const {
    const auto& serie = element->getOutputSerie(type, 0);
    Date date = serie->getInterval().getBegin();
    for (double value : values) {
      serie->setValue(date, value);
      date += Calendar::incInterval(date, serie->getInterval());
    }
  }

  double evaluate(const std::string& text, unsigned int window = 0) const {
    return AutomaticReportExpressionAnalyzerUtils::strToExp(text)->calculate(
        {net.scenario, window});
  }
};

struct Expected {
  std::string text;
  double value;
};

}  // namespace

TEST(ReportVocabularies, EveryKindIsMadeFromItsValueAndFoundByItsName) {
  for (M type : ReportMetricTypeEnumFactory::keys()) {
    const auto kind = ReportMetricTypeEnumFactory::make(type);
    SCOPED_TRACE(kind->getName());
    EXPECT_EQ(kind->getType(), type);
    EXPECT_EQ(*ReportMetricTypeEnumFactory::findByName(kind->getName()), *kind);
  }
  for (SerieOperationType type : AutomaticReportSerieTypeEnumFactory::keys()) {
    const auto kind = AutomaticReportSerieTypeEnumFactory::make(type);
    SCOPED_TRACE(kind->getName());
    EXPECT_EQ(kind->getType(), type);
    EXPECT_EQ(*AutomaticReportSerieTypeEnumFactory::findByName(kind->getName()), *kind);
    EXPECT_EQ(FactoryOfReportSerieTypeToReportSerie::make(type)->getType(), *kind);
  }
  EXPECT_EQ(ReportMetricTypeEnumFactory::findByName("Escassez total"), nullptr);
  EXPECT_EQ(AutomaticReportSerieTypeEnumFactory::findByName("max"), nullptr);
  EXPECT_THROW_TEXT(ReportMetricTypeEnumFactory::make(static_cast<M>(21)), std::invalid_argument,
                    "ReportMetricTypeEnumFactory::make(): invalid reportMetricType");
  EXPECT_THROW_TEXT(AutomaticReportSerieTypeEnumFactory::make(static_cast<SerieOperationType>(8)),
                    std::invalid_argument,
                    "AutomaticReportSerieTypeEnumFactory::make(): invalid serieOperationType");
  EXPECT_THROW_TEXT(FactoryOfReportSerieTypeToReportSerie::make(static_cast<SerieOperationType>(8)),
                    std::invalid_argument,
                    "FactoryOfReportSerieTypeToReportSerie::make(): invalid serieOperationType");
}

// A metric exists for every kind but the three names users give their own metrics, and every
// metric applies to some element type; the three names apply to none.
TEST(ReportVocabularies, EveryMetricAppliesToSomeElementTypeAndTheUsersNamesToNone) {
  std::set<M> applied;
  for (const auto& type : Vocabulary::elementTypes().getRows()) {
    for (const auto& kind :
         FactoryOfElementTypeToVectorOfReportMetricTypeEnum::make(type.getType())) {
      applied.insert(kind->getType());
      EXPECT_TRUE(FactoryOfElementTypeToVectorOfReportMetricTypeEnum::allows(type.getType(),
                                                                             kind->getType()));
    }
  }
  for (M type : ReportMetricTypeEnumFactory::keys()) {
    SCOPED_TRACE(ReportMetricTypeEnumFactory::make(type)->getName());
    const bool usersName =
        type == M::nameOfMetricOne || type == M::nameOfMetricTwo || type == M::nameOfMetricThree;
    EXPECT_EQ(applied.count(type), usersName ? 0u : 1u);
    if (usersName) {
      EXPECT_THROW_TEXT(
          FactoryOfReportMetricTypeToReportMetric::make(type), std::invalid_argument,
          "FactoryOfReportMetricTypeToReportMetric::make(): invalid reportMetricType");
    } else {
      EXPECT_EQ(FactoryOfReportMetricTypeToReportMetric::make(type)->getType(),
                *ReportMetricTypeEnumFactory::make(type));
    }
  }
  EXPECT_THROW_TEXT(
      FactoryOfElementTypeToVectorOfReportMetricTypeEnum::make(static_cast<ElementType>(12)),
      std::invalid_argument,
      "FactoryOfElementTypeToVectorOfReportMetricTypeEnum::make(): invalid elementType");
  EXPECT_FALSE(FactoryOfElementTypeToVectorOfReportMetricTypeEnum::allows(
      static_cast<ElementType>(12), M::totalShortageInHm3));
}

TEST(ReportMetrics, EachMetricOfAKnownRunWorkedByHand) {
  const FourMonths run;
  const Expected cases[] = {
      // Releases 10, 20, 0 and 5 m³/s: 26.784 + 48.384 + 0 + 12.96 = 88.128 hm³.
      {"Soma de liberações em m3s(R)", 35.0},
      {"Soma de liberações em Hm3(R)", 88.128},
      {"Soma de liberações em m3(R)", 88128000.0},
      {"Soma de liberações em L(R)", 88128000000.0},
      {"Média de liberações em M3s(R)", 8.75},
      {"Média de liberações em hm3(R)", 22.032},
      {"Média de liberações em m3(R)", 22032000.0},
      {"Média de liberações em L(R)", 22032000000.0},
      // Volumes 50, 10, 5 and 8 hm³ over a minimum of 10: only January's is above it.
      {"Percent. de tempo médio acima do vol. mínimo(R)", 25.0},
      {"Percent. de tempo médio abaixo do vol. mínimo(R)", 75.0},
      {"Percent. de tempo médio no qual ocorreu vert.(R)", 25.0},
      // D1 met its demand in February, March and April (1e-7 counts as 0).
      {"Perc. médio de tempo que dem. é atend.(D1)", 75.0},
      {"Perc. médio de tempo que dem. é atend.(Foz)", 0.0},
      // Shortages 2, 0 and 3 m³/s, April's missing: 5.3568 + 0 + 8.0352 = 13.392 hm³ over 3.
      {"Escassez total em hm3(D1)", 13.392},
      {"Escassez total em m3(D1)", 13392000.0},
      {"Escassez total em L(D1)", 13392000000.0},
      {"Escassez média em hm3(D1)", 4.464},
      {"Escassez média em m3(D1)", 4464000.0},
      {"Escassez média em L(D1)", 4464000000.0},
      {"Soma de liberações em Hm3(R) / Média de liberações em hm3(R)", 4.0},
      {"Perc. médio de tempo que dem. é atend.(D1) + "
       "Percent. de tempo médio abaixo do vol. mínimo(R) * 2",
       225.0},
  };
  for (const Expected& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_NEAR(run.evaluate(c.text), c.value, std::abs(c.value) * 1e-12);
  }
}

TEST(ReportMetrics, EachSeriesOperationOfAKnownRunWorkedByHand) {
  const FourMonths run;
  // Volumes 50, 10, 5 and 8: mean 18.25, squared deviations 1008.0625, 68.0625, 175.5625 and
  // 105.0625, which add up to 1356.75.
  const Expected cases[] = {
      {"Min(R, Volume final)", 5.0},
      {"Max(R, Volume final)", 50.0},
      {"Sum(R, Volume final)", 73.0},
      {"Average(R, Volume final)", 18.25},
      {"VariancePopulation(R, Volume final)", 1356.75 / 4},
      {"VarianceSample(R, Volume final)", 1356.75 / 3},
      {"StdDeviationPopulation(R, Volume final)", std::sqrt(1356.75 / 4)},
      {"StdDeviationSample(R, Volume final)", std::sqrt(1356.75 / 3)},
      // An input kind reads the input series.
      {"Average(R, Evaporação)", 130.0},
      // "Perda em trânsito" names an input (a percentage, 0 here) and a result: the result.
      {"Sum(L1, Perda em trânsito)", 10.0},
      // Missing values take no part: the one value 7 of the junction.
      {"Average(\"Juazeiro-Petrolina\", Vazão efluente)", 7.0},
      {"VariancePopulation(\"Juazeiro-Petrolina\", Vazão efluente)", 0.0},
      {"Max(R, Volume final) - Min(R, Volume final) * 2", 40.0},
  };
  for (const Expected& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_NEAR(run.evaluate(c.text), c.value, std::abs(c.value) * 1e-12);
  }
}

TEST(ReportMetrics, AFigureWithoutMeaningMakesTheValueNaN) {
  const FourMonths run;
  EXPECT_TRUE(std::isnan(run.evaluate("VarianceSample(\"Juazeiro-Petrolina\", Vazão efluente)")));
  EXPECT_TRUE(std::isnan(run.evaluate("1 + Min(Foz, Demanda atendida)")));
}

TEST(ReportMetrics, EvaluationFailuresNameThePlaceAndTheCause) {
  const FourMonths run;
  struct Case {
    std::string text;
    unsigned int window;
    std::string error;
  };
  const Case cases[] = {
      {"Max(Sobradinho, Volume final)", 0,
       "position 5: scenario \"Teste\" has no element named \"Sobradinho\""},
      {"2 * Escassez total em hm3(R)", 0,
       "position 5: \"Escassez total em hm3\" does not apply to \"R\" (Reservatório)"},
      {"Soma de liberações em m3s(\"Juazeiro-Petrolina\")", 0,
       "position 1: \"Soma de liberações em m3s\" does not apply to \"Juazeiro-Petrolina\" "
       "(Junção)"},
      {"Nome de métrica 1(D1)", 0,
       "position 1: \"Nome de métrica 1\" does not apply to \"D1\" (Demanda humana)"},
      {"Max(D1, Volume final)", 0, "position 9: element \"D1\" has no series \"Volume final\""},
      {"Max(D1, Demanda atendida)", 1, "position 5: element \"D1\" has no results in window 2"},
      {"Escassez total em hm3(D1)", 1,
       "position 1: Escassez total em hm3(D1): Invalid index value!"},
      {"Sum(R, Vazão liberada) / (Min(R, Volume final) - 5)", 0, "position 24: division by zero"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_THROW_TEXT(run.evaluate(c.text, c.window), std::invalid_argument, c.error);
  }
}

TEST(ReportMetrics, TheMetricsOwnFailuresFollowTheSimulationMetrics) {
  const FourMonths run;
  const auto met = FactoryOfReportMetricTypeToReportMetric::make(M::averagePercentageOfMetDemand);
  EXPECT_THROW_TEXT(met->calculate(run.d1, run.net.scenario, 1), std::invalid_argument,
                    "Invalid index value!");
  EXPECT_THROW_TEXT(met->calculate(nullptr, run.net.scenario, 0), std::invalid_argument,
                    "AutomaticReportMetric::calculate(): no element");
  EXPECT_THROW_TEXT(met->calculate(run.r, run.net.scenario, 0), std::invalid_argument,
                    "AutomaticReportMetric::calculate(): \"Perc. médio de tempo que dem. é "
                    "atend.\" does not apply to Reservatório");
  // A demand holding a reservoir's results lacks "Falha no atendimento".
  run.d1->setOutputSeries({std::make_shared<ReservoirSeriesOutput>()});
  EXPECT_THROW_TEXT(met->calculate(run.d1, run.net.scenario, 0), std::invalid_argument,
                    "Invalid serie type!");
  const auto maximum = FactoryOfReportSerieTypeToReportSerie::make(SerieOperationType::max);
  EXPECT_THROW_TEXT(maximum->calculate(run.net.scenario, *run.d1, SerieType::supplyFailure, 0),
                    std::invalid_argument, "Invalid serie type!");
  run.d1->clearOutputSeries();
  EXPECT_THROW_TEXT(met->calculate(run.d1, run.net.scenario, 0), std::invalid_argument,
                    "Invalid index value!");
}
