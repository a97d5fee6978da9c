#include "reports/DemandSimulationMetric.h"

#include <algorithm>

#include "common/NumericalUtils.h"
#include "hydrology/HydrologicalConversion.h"

bool DemandSimulationMetric::measures(const Element& element) const {
  return dynamic_cast<const Demand*>(&element) != nullptr;
}

double DemandSimulationMetric::compute(const std::shared_ptr<Element>& element,
                                       const Run& run) const {
  return computeOn(static_cast<const Demand&>(*element), run);
}

std::vector<bool> DemandSimulationMetric::failures(const Demand& demand, const Run& run) {
  std::vector<bool> result;
  result.reserve(run.size());
  for (double value : run.read(demand, SerieType::supplyFailure)) result.push_back(failed(value));
  return result;
}

double DemandSimulationMetric::volume(const std::vector<double>& flows, const Run& run) {
  return volume(flows, run, std::vector<bool>(flows.size(), true));
}

double DemandSimulationMetric::volume(const std::vector<double>& flows, const Run& run,
                                      const std::vector<bool>& only) {
  double sum = 0.0;
  for (std::size_t t = 0; t < flows.size(); ++t) {
    if (only[t]) sum += run.hm3(t, flows[t]);
  }
  return sum;
}

double DemandSimulationMetric::averageFlow(double volume, double days) {
  if (days == 0.0) return Serie::kEmptyValue;
  return HydrologicalConversion::flow(volume, static_cast<unsigned int>(days));
}

double DemandSimulationMetric::daysOfWindow(const Interval& interval) {
  const Date& end = interval.getEnd();
  const Date lastDay(end.getYear(), end.getMonth(), end.daysInMonth());
  return static_cast<double>(Date::julian(lastDay)) - Date::julian(interval.getBegin());
}

double AccumulatedVolumeOfDeficitsMetric::computeOn(const Demand& demand, const Run& run) const {
  return volume(run.read(demand, SerieType::supplyShortage), run, failures(demand, run));
}

double AverageFlowRateProvidedMetric::computeOn(const Demand& demand, const Run& run) const {
  return averageFlow(volume(run.read(demand, SerieType::attendedDemand), run),
                     daysOfWindow(run.getInterval()));
}

double AverageFlowRateProvidedAsAPercentageOfDemandMetric::computeOn(const Demand& demand,
                                                                     const Run& run) const {
  const double required = volume(run.read(demand, SerieType::targetDemand), run);
  if (NumericalUtils::compareDoubles(required, 0.0, kTolerance)) return Serie::kEmptyValue;
  return volume(run.read(demand, SerieType::attendedDemand), run) * 100.0 / required;
}

double AverageFlowRateProvidedWhenFailsOccurMetric::computeOn(const Demand& demand,
                                                              const Run& run) const {
  const std::vector<bool> failed = failures(demand, run);
  double days = 0.0;
  for (std::size_t t = 0; t < run.size(); ++t) {
    if (failed[t]) days += run.getDates()[t].daysInMonth();
  }
  return averageFlow(volume(run.read(demand, SerieType::attendedDemand), run, failed), days);
}

double FrequencyUnderNeededDemandMetric::computeOn(const Demand& demand, const Run& run) const {
  return percentage(static_cast<double>(count(failures(demand, run))),
                    static_cast<double>(run.size()));
}

double MaxTimeUnderNeededDemandMetric::computeOn(const Demand& demand, const Run& run) const {
  return static_cast<double>(longestRun(failures(demand, run)));
}

double MinimumFlowRateProvidedMetric::computeOn(const Demand& demand, const Run& run) const {
  const std::vector<double> provided = run.read(demand, SerieType::attendedDemand);
  if (provided.empty()) return Serie::kEmptyValue;
  return *std::min_element(provided.begin(), provided.end());
}

double RequiredAverageDemandMetric::computeOn(const Demand& demand, const Run& run) const {
  return averageFlow(volume(run.read(demand, SerieType::targetDemand), run),
                     daysOfWindow(run.getInterval()));
}

double TotalTimeThatDemandIsMetMetric::computeOn(const Demand& demand, const Run& run) const {
  const std::vector<double> flags = run.read(demand, SerieType::supplyFailure);
  return static_cast<double>(std::count_if(flags.begin(), flags.end(), [](double flag) {
    return NumericalUtils::compareDoubles(flag, 0.0, kTolerance);
  }));
}

double TotalTimeUnderNeededDemandMetric::computeOn(const Demand& demand, const Run& run) const {
  return static_cast<double>(count(failures(demand, run)));
}
