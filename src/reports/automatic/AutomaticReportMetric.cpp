#include "reports/automatic/AutomaticReportMetric.h"

#include <algorithm>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Reservoir.h"
#include "reports/automatic/FactoryOfElementTypeToVectorOfReportMetricTypeEnum.h"
#include "vocabulary/ReportMetricTypeEnumFactory.h"

namespace {

constexpr double kCubicMetresPerHm3 = 1000000.0;
constexpr double kLitresPerCubicMetre = 1000.0;

bool above(double value, double reference, double tolerance) {
  return NumericalUtils::subtractDoubles(value, reference, tolerance) > 0.0;
}

template <typename Condition>
std::size_t countWhere(const std::vector<double>& values, Condition condition) {
  return static_cast<std::size_t>(std::count_if(values.begin(), values.end(), condition));
}

}  // namespace

AutomaticReportMetric::AutomaticReportMetric(ReportMetricType type)
    : kind(ReportMetricTypeEnumFactory::make(type)) {}

double AutomaticReportMetric::calculate(const std::shared_ptr<Element>& element,
                                        const std::shared_ptr<Scenario>& scenario,
                                        unsigned int runIndex) const {
  if (!element) throw std::invalid_argument("AutomaticReportMetric::calculate(): no element");
  if (!FactoryOfElementTypeToVectorOfReportMetricTypeEnum::allows(element->getType(),
                                                                  kind->getType())) {
    throw std::invalid_argument("AutomaticReportMetric::calculate(): \"" + kind->getName() +
                                "\" does not apply to " + element->getElementType().getName());
  }
  const std::vector<Interval> windows = scenario->calcVectorOfIntervals();
  if (runIndex >= windows.size()) throw std::invalid_argument("Invalid index value!");
  return compute(*element, Run(windows[runIndex], runIndex), runIndex);
}

std::vector<double> AutomaticReportMetric::valuesOf(const Element& element, SerieType type,
                                                    const Run& run, unsigned int runIndex) {
  if (!element.getOutputSerie(type, runIndex)) {
    throw std::invalid_argument("The serie is a null pointer");
  }
  return run.read(element, type);
}

double AutomaticReportMetric::percentage(std::size_t part, std::size_t whole) {
  return whole == 0 ? Serie::kEmptyValue
                    : static_cast<double>(part) * 100.0 / static_cast<double>(whole);
}

AutomaticReportFlowMetric::AutomaticReportFlowMetric(ReportMetricType type, SerieType serie,
                                                     ReportFlowUnit unit, bool average)
    : AutomaticReportMetric(type), serie(serie), unit(unit), average(average) {}

double AutomaticReportFlowMetric::compute(const Element& element, const Run& run,
                                          unsigned int runIndex) const {
  const std::vector<double> flows = valuesOf(element, serie, run, runIndex);
  double total = 0.0;
  std::size_t periods = 0;
  for (std::size_t t = 0; t < flows.size(); ++t) {
    if (NumericalUtils::isEmpty(flows[t])) continue;
    total += unit == ReportFlowUnit::cubicMetresPerSecond ? flows[t] : run.hm3(t, flows[t]);
    ++periods;
  }
  if (unit == ReportFlowUnit::cubicMetres) total *= kCubicMetresPerHm3;
  if (unit == ReportFlowUnit::litres) total *= kCubicMetresPerHm3 * kLitresPerCubicMetre;
  if (!average) return total;
  return periods == 0 ? Serie::kEmptyValue : total / static_cast<double>(periods);
}

double PercentOfTimeAboveMinVolume::compute(const Element& element, const Run& run,
                                            unsigned int runIndex) const {
  const double minimum = static_cast<const Reservoir&>(element).getReservoirInfo().minVol;
  const auto volumes = valuesOf(element, SerieType::finalVolume, run, runIndex);
  return percentage(
      countWhere(volumes, [&](double volume) { return above(volume, minimum, kTolerance); }),
      run.size());
}

double PercentOfTimeUnderMinVolume::compute(const Element& element, const Run& run,
                                            unsigned int runIndex) const {
  const double minimum = static_cast<const Reservoir&>(element).getReservoirInfo().minVol;
  const auto volumes = valuesOf(element, SerieType::finalVolume, run, runIndex);
  return percentage(
      countWhere(volumes, [&](double volume) { return !above(volume, minimum, kTolerance); }),
      run.size());
}

double PercentOfTimeOfWhenOcurredSpill::compute(const Element& element, const Run& run,
                                                unsigned int runIndex) const {
  const auto spills = valuesOf(element, SerieType::spilledVolume, run, runIndex);
  return percentage(countWhere(spills, [](double spill) { return above(spill, 0.0, kTolerance); }),
                    run.size());
}

double AveragePercentageOfMetDemand::compute(const Element& element, const Run& run,
                                             unsigned int runIndex) const {
  const auto failures = valuesOf(element, SerieType::supplyFailure, run, runIndex);
  return percentage(countWhere(failures,
                               [](double failure) {
                                 return NumericalUtils::compareDoubles(failure, 0.0, kTolerance);
                               }),
                    run.size());
}
