#include "reports/ReservoirSimulationMetric.h"

#include "core/ElementSets.h"
#include "core/NetworkUtils.h"

namespace {

// Periods in which the flags go from true to false: a failure followed by recovery.
double recoveries(const std::vector<bool>& flags) {
  double result = 0.0;
  for (std::size_t t = 0; t + 1 < flags.size(); ++t) {
    if (flags[t] && !flags[t + 1]) result += 1.0;
  }
  return result;
}

double changes(const std::vector<bool>& flags) {
  double result = 0.0;
  for (std::size_t t = 0; t + 1 < flags.size(); ++t) {
    if (flags[t] != flags[t + 1]) result += 1.0;
  }
  return result;
}

void orInto(std::vector<bool>& flags, const std::vector<bool>& more) {
  for (std::size_t t = 0; t < flags.size(); ++t) flags[t] = flags[t] || more[t];
}

// The nodes of those types reached from the reservoir along enabled links, the reservoir itself
// first when it is of one of them: its own target counts among those it answers for, or the
// last reservoir of a river would look reliable whatever its storage.
std::vector<std::shared_ptr<Node>> downstream(const std::shared_ptr<Reservoir>& reservoir,
                                              const std::set<ElementType>& types) {
  std::vector<std::shared_ptr<Node>> nodes;
  if (types.count(reservoir->getType()) != 0) nodes.push_back(reservoir);
  for (auto& node : NetworkUtils::getAllDownstreamNodes(reservoir, types, true)) {
    nodes.push_back(std::move(node));
  }
  return nodes;
}

}  // namespace

bool ReservoirSimulationMetric::measures(const Element& element) const {
  return dynamic_cast<const Reservoir*>(&element) != nullptr;
}

double ReservoirSimulationMetric::compute(const std::shared_ptr<Element>& element,
                                          const Run& run) const {
  return computeOn(std::static_pointer_cast<Reservoir>(element), run);
}

std::vector<bool> ReservoirSimulationMetric::emptied(const Reservoir& reservoir, const Run& run) {
  const double minimum = reservoir.getReservoirInfo().minVol;
  std::vector<bool> result;
  result.reserve(run.size());
  // The operation never takes a reservoir below its minimum: one that sits on it is empty.
  for (double volume : run.read(reservoir, SerieType::finalVolume)) {
    result.push_back(!above(volume, minimum));
  }
  return result;
}

std::vector<bool> ReservoirSimulationMetric::belowTarget(const Reservoir& reservoir,
                                                         const Run& run) {
  const double maximum = reservoir.getReservoirInfo().maxVol;
  const std::vector<double> volumes = run.read(reservoir, SerieType::finalVolume);
  const std::vector<double> targets = run.read(reservoir, SerieType::targetVolume);
  std::vector<bool> result;
  result.reserve(run.size());
  for (std::size_t t = 0; t < run.size(); ++t) {
    result.push_back(below(volumes[t], targets[t] * maximum));
  }
  return result;
}

std::vector<bool> ReservoirSimulationMetric::downstreamFailures(
    const std::shared_ptr<Reservoir>& reservoir, const Run& run) {
  std::vector<bool> result(run.size(), false);
  for (const auto& demand : downstream(reservoir, ElementSets::consumerDemands())) {
    const std::vector<double> flags = run.read(*demand, SerieType::supplyFailure);
    for (std::size_t t = 0; t < run.size(); ++t) result[t] = result[t] || failed(flags[t]);
  }
  return result;
}

std::vector<bool> ReservoirSimulationMetric::downstreamBelowTarget(
    const std::shared_ptr<Reservoir>& reservoir, const Run& run) {
  std::vector<bool> result(run.size(), false);
  for (const auto& node : downstream(reservoir, ElementSets::reservoir())) {
    orInto(result, belowTarget(static_cast<const Reservoir&>(*node), run));
  }
  return result;
}

double ReservoirSimulationMetric::reliability(const std::vector<bool>& badPeriods) {
  const double n = static_cast<double>(badPeriods.size());
  return percentage(n - static_cast<double>(count(badPeriods)), n);
}

double EmptyingFrequencyMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                          const Run& run) const {
  return percentage(static_cast<double>(count(emptied(*reservoir, run))),
                    static_cast<double>(run.size()));
}

double FrequencyUnderTargetVolumeSimulationMetric::computeOn(
    const std::shared_ptr<Reservoir>& reservoir, const Run& run) const {
  return percentage(static_cast<double>(count(belowTarget(*reservoir, run))),
                    static_cast<double>(run.size()));
}

double MaxTimeOfEmptyingSimulationMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                                    const Run& run) const {
  return static_cast<double>(longestRun(emptied(*reservoir, run)));
}

double MaxTimeUnderTargetVolumeSimulationMetric::computeOn(
    const std::shared_ptr<Reservoir>& reservoir, const Run& run) const {
  return static_cast<double>(count(belowTarget(*reservoir, run)));
}

double ReliabilityToDemandsMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                             const Run& run) const {
  return reliability(downstreamFailures(reservoir, run));
}

double ReliabilityToReservoirsMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                                const Run& run) const {
  return reliability(downstreamBelowTarget(reservoir, run));
}

double ReliabilityToReservoirsAndDemandsMetric::computeOn(
    const std::shared_ptr<Reservoir>& reservoir, const Run& run) const {
  std::vector<bool> bad = downstreamFailures(reservoir, run);
  orInto(bad, downstreamBelowTarget(reservoir, run));
  return reliability(bad);
}

double ResilienceOfTypeOneMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                            const Run& run) const {
  const std::vector<bool> failed = downstreamFailures(reservoir, run);
  const double failures = static_cast<double>(count(failed));
  const double changed = changes(failed);
  const double n = static_cast<double>(failed.size());
  if (failures == 0.0 || changed == 0.0 || n == 0.0) return Serie::kEmptyValue;
  return (recoveries(failed) / changed) / (failures / n);
}

double ResilienceOfTypeTwoMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                            const Run& run) const {
  const std::vector<bool> failed = downstreamFailures(reservoir, run);
  const double failures = static_cast<double>(count(failed));
  if (failures == 0.0) return Serie::kEmptyValue;
  return recoveries(failed) / failures;
}

double SpillFrequencyMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                       const Run& run) const {
  const std::vector<double> spills = run.read(*reservoir, SerieType::spilledVolume);
  std::size_t spilled = 0;
  for (double spill : spills) spilled += above(spill, 0.0) ? 1 : 0;
  return percentage(static_cast<double>(spilled), static_cast<double>(run.size()));
}

double VolumeAccumulatedSpillMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                               const Run& run) const {
  double sum = 0.0;
  for (double spill : run.read(*reservoir, SerieType::spilledVolume)) {
    if (above(spill, 0.0)) sum += spill;
  }
  return sum;
}

double VulnerabilityMetric::computeOn(const std::shared_ptr<Reservoir>& reservoir,
                                      const Run& run) const {
  double sum = 0.0;
  double failures = 0.0;
  for (const auto& demand : downstream(reservoir, ElementSets::consumerDemands())) {
    const std::vector<double> flags = run.read(*demand, SerieType::supplyFailure);
    const std::vector<double> shortages = run.read(*demand, SerieType::supplyShortage);
    const std::vector<double> targets = run.read(*demand, SerieType::targetDemand);
    for (std::size_t t = 0; t < run.size(); ++t) {
      if (!failed(flags[t])) continue;
      sum += run.hm3(t, shortages[t]) * 100.0 / run.hm3(t, targets[t]);
      failures += 1.0;
    }
  }
  return failures == 0.0 ? Serie::kEmptyValue : sum / failures;
}
