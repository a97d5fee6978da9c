#pragma once

#include <memory>

#include "common/Date.h"
#include "common/Serie.h"
#include "core/Element.h"
#include "core/Scenario.h"
#include "vocabulary/AutomaticReportSerieTypeEnum.h"

// An operation over the values of one series of an element within one window (run) of a
// scenario: the result series of the window, or for a kind users supply
// (SerieStatisticsInInterval::isAInputSerie) the element's input series over the window's
// dates. Missing values (-999.0) take no part; the figure is in the unit of the series (squared
// for a variance).
class AutomaticReportSerie {
 public:
  virtual ~AutomaticReportSerie() = default;

  const AutomaticReportSerieTypeEnum& getType() const { return *kind; }
  // The figure, or -999.0 when there are too few values for it (none; fewer than two for the
  // sample forms); a sum of no values is 0. Throws std::invalid_argument "Invalid index value!"
  // for a window the scenario or the element lacks, "Invalid serie type!" for a kind the
  // element lacks and "The serie is a null pointer" for a series that is not there.
  double calculate(const std::shared_ptr<Scenario>& scenario, const Element& element,
                   SerieType type, unsigned int runIndex) const;

 protected:
  explicit AutomaticReportSerie(SerieOperationType type);
  // The figure over the values of serie dated from begin to end, both included.
  virtual double over(const std::shared_ptr<Serie>& serie, const Date& begin,
                      const Date& end) const = 0;

 private:
  std::shared_ptr<AutomaticReportSerieTypeEnum> kind;
};

#define KOVA_REPORT_SERIE_OPERATION(Name, value)                        \
  class Name : public AutomaticReportSerie {                            \
   public:                                                              \
    Name() : AutomaticReportSerie(SerieOperationType::value) {}         \
                                                                        \
   protected:                                                           \
    double over(const std::shared_ptr<Serie>& serie, const Date& begin, \
                const Date& end) const override;                        \
  }

KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieMinValue, min);
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieMaxValue, max);
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieSumValue, sum);
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieAverageValue, average);
// sum((v - mean)^2) / n.
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieVariancePopulationValue, variancePopulation);
// sum((v - mean)^2) / (n - 1).
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieVarianceSampleValue, varianceSample);
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieStdDeviationPopulationValue,
                            stdDeviationPopulation);
KOVA_REPORT_SERIE_OPERATION(AutomaticReportSerieStdDeviationSampleValue, stdDeviationSample);

#undef KOVA_REPORT_SERIE_OPERATION
