#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Demand.h"
#include "reports/SimulationMetric.h"

// The base of the metrics of a demand (drains included), read from its own results. Averages of
// flow spread a volume over D days, D running from the window's first date to the last day of
// the month of its last date without counting that day: a January-to-December year has 364.
class DemandSimulationMetric : public SimulationMetric {
 protected:
  using SimulationMetric::SimulationMetric;

  bool measures(const Element& element) const override;
  double compute(const std::shared_ptr<Element>& element, const Run& run) const final;
  // The value over the window, or -999.0 when it has none.
  virtual double computeOn(const Demand& demand, const Run& run) const = 0;

  // Whether each period of the window failed.
  static std::vector<bool> failures(const Demand& demand, const Run& run);
  // The sum of the volumes of flows (m³/s) over the periods, or over the flagged ones only, hm³.
  static double volume(const std::vector<double>& flows, const Run& run);
  static double volume(const std::vector<double>& flows, const Run& run,
                       const std::vector<bool>& only);
  // A volume (hm³) spread over days, m³/s; -999.0 for no days.
  static double averageFlow(double volume, double days);
  // The D of the window, days.
  static double daysOfWindow(const Interval& interval);
};

// Sum over the failed periods of the volume of "Escassez de oferta", hm³.
class AccumulatedVolumeOfDeficitsMetric : public DemandSimulationMetric {
 public:
  AccumulatedVolumeOfDeficitsMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::accumulatedVolumeOfDeficits,
                               "(hm³)", TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The volume of "Demanda atendida" over the window spread over its days, m³/s.
class AverageFlowRateProvidedMetric : public DemandSimulationMetric {
 public:
  AverageFlowRateProvidedMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::averageFlowRateProvided, "(m³/s)",
                               TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The volume of "Demanda atendida" as a percentage of that of "Demanda meta"; empty when
// the latter is 0 within 1e-6.
class AverageFlowRateProvidedAsAPercentageOfDemandMetric : public DemandSimulationMetric {
 public:
  AverageFlowRateProvidedAsAPercentageOfDemandMetric()
      : DemandSimulationMetric(
            SimulationMetricsTypeDefinition::averageFlowRateProvidedAsAPercentageOfRequiredDemand,
            "(%)", TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The volume of "Demanda atendida" over the failed periods spread over the days of their
// months, m³/s; empty without failures.
class AverageFlowRateProvidedWhenFailsOccurMetric : public DemandSimulationMetric {
 public:
  AverageFlowRateProvidedWhenFailsOccurMetric()
      : DemandSimulationMetric(
            SimulationMetricsTypeDefinition::averageFlowRateProvidedWhenFailsOccur, "(m³/s)",
            TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The failed periods as a percentage of the periods.
class FrequencyUnderNeededDemandMetric : public DemandSimulationMetric {
 public:
  FrequencyUnderNeededDemandMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::frequencyUnderNeededDemand, "(%)",
                               TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The longest stretch of consecutive failed periods.
class MaxTimeUnderNeededDemandMetric : public DemandSimulationMetric {
 public:
  MaxTimeUnderNeededDemandMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::maxTimeUnderNeededDemand, "(meses)",
                               TypeOfData::intType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The smallest "Demanda atendida", m³/s.
class MinimumFlowRateProvidedMetric : public DemandSimulationMetric {
 public:
  MinimumFlowRateProvidedMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::minimumFlowProvided, "(m³/s)",
                               TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The volume of "Demanda meta" over the window spread over its days, m³/s.
class RequiredAverageDemandMetric : public DemandSimulationMetric {
 public:
  RequiredAverageDemandMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::requiredAverageDemand, "(m³/s)",
                               TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The periods whose "Falha no atendimento" is 0 within 1e-6.
class TotalTimeThatDemandIsMetMetric : public DemandSimulationMetric {
 public:
  TotalTimeThatDemandIsMetMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::totalTimeThatDemandIsMet, "(meses)",
                               TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};

// The failed periods.
class TotalTimeUnderNeededDemandMetric : public DemandSimulationMetric {
 public:
  TotalTimeUnderNeededDemandMetric()
      : DemandSimulationMetric(SimulationMetricsTypeDefinition::totalTimeUnderNeededDemand,
                               "(meses)", TypeOfData::doubleType) {}

 protected:
  double computeOn(const Demand& demand, const Run& run) const override;
};
