#include <gtest/gtest.h>

#include "core/ElementFactory.h"
#include "core/ResultFactory.h"
#include "operation/ResultsWriterFactory.h"
#include "vocabulary/Vocabulary.h"

namespace {

Interval spanOf(const Date& begin, const Date& end, Periodicity periodicity) {
  return Interval(begin, end, Vocabulary::of(periodicity));
}

}  // namespace

// A writer keeps its flow-to-volume conversion between dates; serving intervals of another
// periodicity, it must convert by the new one. A target of 10 m³/s is, as a volume:
// a month of January 10 * 31 * 0.0864 = 26.784 hm³, a day 10 * 0.0864 = 0.864 hm³,
// the leap year 2000 10 * 366 * 0.0864 = 316.224 hm³, and February 2001 10 * 28 * 0.0864 = 24.192.
TEST(ResultsWriter, ConvertsByThePeriodicityOfEachInterval) {
  const auto demand = ElementFactory::make(ElementType::humanDemand);
  demand->setOutputSeries(ResultFactory::make(
      {ExecutionType::continuous, ElementType::humanDemand, ScenarioType::ruleSimulator}, 1));
  const auto writer =
      ResultsWriterFactory::make({ScenarioType::ruleSimulator, ElementType::humanDemand});
  struct Step {
    Interval interval;
    Date date;
    double volume;  // hm³
  };
  const Step steps[] = {
      {spanOf(Date(2001, 1, 1), Date(2001, 12, 1), Periodicity::monthly), Date(2001, 1, 1), 26.784},
      {spanOf(Date(2001, 1, 1), Date(2001, 1, 31), Periodicity::daily), Date(2001, 1, 5), 0.864},
      {spanOf(Date(2000, 1, 1), Date(2003, 1, 1), Periodicity::yearly), Date(2000, 1, 1), 316.224},
      {spanOf(Date(2001, 1, 1), Date(2001, 12, 1), Periodicity::monthly), Date(2001, 2, 1), 24.192},
  };
  const auto target = demand->getOutputSerie(SerieType::targetDemand, 0);
  for (const Step& step : steps) {
    SCOPED_TRACE(step.date.toString("%d/%m/%Y"));
    target->setValue(step.date, 10.0);
    writer->write(step.date, 0, demand, step.interval, false);
    EXPECT_NEAR(demand->getOutputSerie(SerieType::targetDemandVolume, 0)->getValue(step.date),
                step.volume, 1e-9);
    // Nothing reaches the demand: all of the target is short.
    EXPECT_NEAR(demand->getOutputSerie(SerieType::supplyShortageVolume, 0)->getValue(step.date),
                step.volume, 1e-9);
  }
}
