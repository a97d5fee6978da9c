#pragma once

#include <memory>
#include <vector>

#include "core/Reservoir.h"
#include "reports/SimulationMetric.h"

// The base of the metrics of a reservoir. Some read the reservoir's own results: "Volume final"
// against the minimum volume, or against the target volume, "Volume meta" times the maximum
// volume. The others judge the system below it: the consumer demands (drains aside) and the
// reservoirs reached going down enabled links, the reservoir itself among them.
class ReservoirSimulationMetric : public SimulationMetric {
 protected:
  using SimulationMetric::SimulationMetric;

  bool measures(const Element& element) const override;
  double compute(const std::shared_ptr<Element>& element, const Run& run) const final;
  // The value over the window, or -999.0 when it has none.
  virtual double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const = 0;

  // Whether each period ended at or below the minimum volume (within the tolerance).
  static std::vector<bool> emptied(const Reservoir& reservoir, const Run& run);
  // Whether each period ended below the target volume.
  static std::vector<bool> belowTarget(const Reservoir& reservoir, const Run& run);
  // Whether some consumer demand downstream failed in each period.
  static std::vector<bool> downstreamFailures(const std::shared_ptr<Reservoir>& reservoir,
                                              const Run& run);
  // Whether the reservoir or some reservoir downstream ended each period below its target volume.
  static std::vector<bool> downstreamBelowTarget(const std::shared_ptr<Reservoir>& reservoir,
                                                 const Run& run);
  // The periods not flagged, as a percentage of the periods.
  static double reliability(const std::vector<bool>& badPeriods);
};

// The periods ending at or below the minimum volume, as a percentage of the periods.
class EmptyingFrequencyMetric : public ReservoirSimulationMetric {
 public:
  EmptyingFrequencyMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::emptyingFrequency, "(%)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods ending below the target volume, as a percentage of the periods.
class FrequencyUnderTargetVolumeSimulationMetric : public ReservoirSimulationMetric {
 public:
  FrequencyUnderTargetVolumeSimulationMetric()
      : ReservoirSimulationMetric(
            SimulationMetricsTypeDefinition::frequencyUnderTargetVolumeInPercentage, "(%)",
            TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The longest stretch of consecutive periods ending at or below the minimum volume.
class MaxTimeOfEmptyingSimulationMetric : public ReservoirSimulationMetric {
 public:
  MaxTimeOfEmptyingSimulationMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::maxTimeOfEmptying, "(meses)",
                                  TypeOfData::intType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods ending below the target volume. Users know this figure as a count, not as
// the longest stretch its name suggests, and compare runs by it.
class MaxTimeUnderTargetVolumeSimulationMetric : public ReservoirSimulationMetric {
 public:
  MaxTimeUnderTargetVolumeSimulationMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::maxTimeUnderTargetVolumeInMonths,
                                  "(meses)", TypeOfData::intType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods in which no consumer demand downstream failed, as a percentage of the periods.
class ReliabilityToDemandsMetric : public ReservoirSimulationMetric {
 public:
  ReliabilityToDemandsMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::reliabilityToDemands, "(%)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods in which no reservoir downstream ended below its target volume, as a
// percentage of the periods.
class ReliabilityToReservoirsMetric : public ReservoirSimulationMetric {
 public:
  ReliabilityToReservoirsMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::reliabilityToReservoirs, "(%)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods good for both of the above, as a percentage of the periods.
class ReliabilityToReservoirsAndDemandsMetric : public ReservoirSimulationMetric {
 public:
  ReliabilityToReservoirsAndDemandsMetric()
      : ReservoirSimulationMetric(
            SimulationMetricsTypeDefinition::reliabilityToReservoirsAndDemands, "(%)",
            TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// (recoveries / changes of state) / (failed periods / periods), a period having failed when
// some consumer demand downstream failed in it; empty without failures or changes.
class ResilienceOfTypeOneMetric : public ReservoirSimulationMetric {
 public:
  ResilienceOfTypeOneMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::resilienceOfType1, "(adm)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// Recoveries (a failed period followed by one without failure) per failed period, with
// failures as for type 1; empty without failures.
class ResilienceOfTypeTwoMetric : public ReservoirSimulationMetric {
 public:
  ResilienceOfTypeTwoMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::resilienceOfType2, "(adm)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The periods with spill above 0, as a percentage of the periods.
class SpillFrequencyMetric : public ReservoirSimulationMetric {
 public:
  SpillFrequencyMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::spillFrequency, "(%)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The sum of the spilled volumes above 0, hm³.
class VolumeAccumulatedSpillMetric : public ReservoirSimulationMetric {
 public:
  VolumeAccumulatedSpillMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::volumeAccumulatedSpill, "(hm³)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};

// The mean, over every failure of every consumer demand downstream, of the shortage as a
// percentage of the demand, both in volume; empty without failures.
class VulnerabilityMetric : public ReservoirSimulationMetric {
 public:
  VulnerabilityMetric()
      : ReservoirSimulationMetric(SimulationMetricsTypeDefinition::vulnerability, "(%)",
                                  TypeOfData::doubleType) {}

 protected:
  double computeOn(const std::shared_ptr<Reservoir>& reservoir, const Run& run) const override;
};
