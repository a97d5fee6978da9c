#include "reports/SimulationMetric.h"

#include <algorithm>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"
#include "reports/CellDataFactoryByEnumType.h"
#include "reports/SimulationMetricsEnumFactoryByType.h"

SimulationMetric::Run::Run(const Interval& interval, unsigned int runIndex)
    : interval(interval),
      runIndex(runIndex),
      balance(HydrologicalBalanceFactory::make(interval.getPeriodicity().getType())) {
  dates.reserve(interval.period());
  PeriodWalker::forEach(interval, [this](const Date& date) {
    dates.push_back(date);
    julians.push_back(Date::julian(date));
  });
}

std::vector<double> SimulationMetric::Run::read(const Element& element, SerieType type) const {
  const Serie::Values& stored = element.getOutputSerie(type, runIndex)->getMapOfJulianToValues();
  std::vector<double> values;
  values.reserve(julians.size());
  if (julians.empty()) return values;
  // Stored days and window days both ascend: one pass over each gives what Serie::getValue
  // would give date by date, without a search per date.
  const auto before = [](const Serie::Values::Entry& e, unsigned int julian) {
    return e.first < julian;
  };
  auto entry = std::lower_bound(stored.begin(), stored.end(), julians.front(), before);
  for (unsigned int julian : julians) {
    while (entry != stored.end() && entry->first < julian) ++entry;
    const bool found = entry != stored.end() && entry->first == julian;
    values.push_back(found ? entry->second : Serie::kEmptyValue);
  }
  return values;
}

SimulationMetric::SimulationMetric(SimulationMetricsTypeDefinition kind, std::string unit,
                                   TypeOfData returnType)
    : kind(SimulationMetricsEnumFactoryByType::make(kind)),
      unit(std::move(unit)),
      returnType(returnType) {}

std::shared_ptr<CellData> SimulationMetric::calculate(const std::shared_ptr<Element>& element,
                                                      const std::shared_ptr<Scenario>& scenario,
                                                      unsigned int runIndex) const {
  auto cell = CellDataFactoryByEnumType::make(returnType);
  if (!element || !measures(*element)) return cell;
  const std::vector<Interval> windows = scenario->calcVectorOfIntervals();
  if (runIndex >= windows.size()) return cell;
  cell->setNumber(compute(element, Run(windows[runIndex], runIndex)));
  return cell;
}

bool SimulationMetric::failed(double supplyFailure) {
  return NumericalUtils::compareDoubles(supplyFailure, 1.0, kTolerance);
}

bool SimulationMetric::below(double value, double reference) {
  return NumericalUtils::subtractDoubles(value, reference, kTolerance) < 0.0;
}

bool SimulationMetric::above(double value, double reference) {
  return NumericalUtils::subtractDoubles(value, reference, kTolerance) > 0.0;
}

std::size_t SimulationMetric::count(const std::vector<bool>& flags) {
  return static_cast<std::size_t>(std::count(flags.begin(), flags.end(), true));
}

std::size_t SimulationMetric::longestRun(const std::vector<bool>& flags) {
  std::size_t longest = 0;
  std::size_t current = 0;
  for (bool flag : flags) {
    current = flag ? current + 1 : 0;
    longest = std::max(longest, current);
  }
  return longest;
}

double SimulationMetric::percentage(double part, double whole) {
  return whole == 0.0 ? Serie::kEmptyValue : part * 100.0 / whole;
}
