#pragma once

#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"
#include "reports/SimulationMetric.h"
#include "vocabulary/ReportMetricTypeEnum.h"

// A figure of one element over one window (run) of a scenario that a report expression asks for
// by name. The element types each metric applies to are those of
// FactoryOfElementTypeToVectorOfReportMetricTypeEnum.
//
// Metrics read the element's result series of the window date by date, as the simulation
// metrics do; sums and averages leave out missing values (-999.0). Flows become volumes through the
// hydrological balance of the window's periodicity, a month counting its own days; then
// 1 hm³ = 1,000,000 m³ = 1,000,000,000 L. A sum of flows (m³/s) adds the flows of the periods as
// they are. An average divides by the number of periods that have a value; a percentage of time
// by the number of periods of the window. A figure without meaning (an average of no values)
// is -999.0.
class AutomaticReportMetric {
 public:
  virtual ~AutomaticReportMetric() = default;

  const ReportMetricTypeEnum& getType() const { return *kind; }
  // The figure of element over window runIndex of scenario, in the unit its name says. Throws
  // std::invalid_argument "AutomaticReportMetric::calculate(): no element" for a null element,
  // "AutomaticReportMetric::calculate(): \"<name>\" does not apply to <element type>" for an
  // element of another type, "Invalid index value!" for a window the scenario or the element
  // lacks, "Invalid serie type!" for a series the element lacks and "The serie is a null
  // pointer" for a series that is not there.
  double calculate(const std::shared_ptr<Element>& element,
                   const std::shared_ptr<Scenario>& scenario, unsigned int runIndex) const;

 protected:
  using Run = SimulationMetric::Run;
  static constexpr double kTolerance = 1e-6;

  explicit AutomaticReportMetric(ReportMetricType type);

  // The figure over the window, element being of a type the metric applies to.
  virtual double compute(const Element& element, const Run& run, unsigned int runIndex) const = 0;
  // The values of the element's result series of a kind on each date of the window.
  static std::vector<double> valuesOf(const Element& element, SerieType type, const Run& run,
                                      unsigned int runIndex);
  // part * 100 / whole, or -999.0 when whole is 0.
  static double percentage(std::size_t part, std::size_t whole);

 private:
  std::shared_ptr<ReportMetricTypeEnum> kind;
};

// The unit a flow metric gives its figure in.
enum class ReportFlowUnit { cubicMetresPerSecond, cubicHectometres, cubicMetres, litres };

// The sum, or the average per period, of a flow series (m³/s) of the element: as flows, or as
// the volumes of the periods.
class AutomaticReportFlowMetric : public AutomaticReportMetric {
 protected:
  AutomaticReportFlowMetric(ReportMetricType type, SerieType serie, ReportFlowUnit unit,
                            bool average);
  double compute(const Element& element, const Run& run, unsigned int runIndex) const override;

 private:
  SerieType serie;
  ReportFlowUnit unit;
  bool average;
};

#define KOVA_REPORT_FLOW_METRIC(Name, value, serie, unit, average)             \
  class Name : public AutomaticReportFlowMetric {                              \
   public:                                                                     \
    Name()                                                                     \
        : AutomaticReportFlowMetric(ReportMetricType::value, SerieType::serie, \
                                    ReportFlowUnit::unit, average) {}          \
  }

// A reservoir's "Vazão liberada".
KOVA_REPORT_FLOW_METRIC(SumOfReleasesInM3s, sumOfReleasesInM3s, releasedFlow, cubicMetresPerSecond,
                        false);
KOVA_REPORT_FLOW_METRIC(SumOfReleasesInHm3, sumOfReleasesInHm3, releasedFlow, cubicHectometres,
                        false);
KOVA_REPORT_FLOW_METRIC(SumOfReleasesInM3, sumOfReleasesInM3, releasedFlow, cubicMetres, false);
KOVA_REPORT_FLOW_METRIC(SumOfReleasesInL, sumOfReleasesInL, releasedFlow, litres, false);
KOVA_REPORT_FLOW_METRIC(AverageReleasesInM3s, averageReleasesInM3s, releasedFlow,
                        cubicMetresPerSecond, true);
KOVA_REPORT_FLOW_METRIC(AverageReleasesInHm3, averageReleasesInHm3, releasedFlow, cubicHectometres,
                        true);
KOVA_REPORT_FLOW_METRIC(AverageReleasesInM3, averageReleasesInM3, releasedFlow, cubicMetres, true);
KOVA_REPORT_FLOW_METRIC(AverageReleasesInL, averageReleasesInL, releasedFlow, litres, true);
// A demand's "Escassez de oferta".
KOVA_REPORT_FLOW_METRIC(TotalShortageInHm3, totalShortageInHm3, supplyShortage, cubicHectometres,
                        false);
KOVA_REPORT_FLOW_METRIC(TotalShortageInM3, totalShortageInM3, supplyShortage, cubicMetres, false);
KOVA_REPORT_FLOW_METRIC(TotalShortageInL, totalShortageInL, supplyShortage, litres, false);
KOVA_REPORT_FLOW_METRIC(AverageShortageInHm3, averageShortageInHm3, supplyShortage,
                        cubicHectometres, true);
KOVA_REPORT_FLOW_METRIC(AverageShortageInM3, averageShortageInM3, supplyShortage, cubicMetres,
                        true);
KOVA_REPORT_FLOW_METRIC(AverageShortageInL, averageShortageInL, supplyShortage, litres, true);

#undef KOVA_REPORT_FLOW_METRIC

// The periods in which the reservoir's "Volume final" is above its minimum volume (beyond
// 1e-6), as a percentage of the window's periods.
class PercentOfTimeAboveMinVolume : public AutomaticReportMetric {
 public:
  PercentOfTimeAboveMinVolume()
      : AutomaticReportMetric(ReportMetricType::percentOfTimeAboveMinVolume) {}

 protected:
  double compute(const Element& element, const Run& run, unsigned int runIndex) const override;
};

// The periods in which the reservoir's "Volume final" is not above its minimum volume, as a
// percentage: the operation never takes a reservoir below its minimum, so one that sits on it
// counts as under it, and this figure and the one above add up to 100.
class PercentOfTimeUnderMinVolume : public AutomaticReportMetric {
 public:
  PercentOfTimeUnderMinVolume()
      : AutomaticReportMetric(ReportMetricType::percentOfTimeUnderMinVolume) {}

 protected:
  double compute(const Element& element, const Run& run, unsigned int runIndex) const override;
};

// The periods in which the reservoir's "Volume vertido" is above 0 (beyond 1e-6), as a
// percentage.
class PercentOfTimeOfWhenOcurredSpill : public AutomaticReportMetric {
 public:
  PercentOfTimeOfWhenOcurredSpill()
      : AutomaticReportMetric(ReportMetricType::percentOfTimeOfWhenOcurredSpill) {}

 protected:
  double compute(const Element& element, const Run& run, unsigned int runIndex) const override;
};

// The periods in which the demand's "Falha no atendimento" is 0 within 1e-6, as a percentage.
class AveragePercentageOfMetDemand : public AutomaticReportMetric {
 public:
  AveragePercentageOfMetDemand()
      : AutomaticReportMetric(ReportMetricType::averagePercentageOfMetDemand) {}

 protected:
  double compute(const Element& element, const Run& run, unsigned int runIndex) const override;
};
