#include "reports/automatic/AutomaticReportSerie.h"

#include <stdexcept>

#include "reports/SerieStatisticsInInterval.h"
#include "vocabulary/AutomaticReportSerieTypeEnumFactory.h"

using Stats = SerieStatisticsInInterval;

AutomaticReportSerie::AutomaticReportSerie(SerieOperationType type)
    : kind(AutomaticReportSerieTypeEnumFactory::make(type)) {}

double AutomaticReportSerie::calculate(const std::shared_ptr<Scenario>& scenario,
                                       const Element& element, SerieType type,
                                       unsigned int runIndex) const {
  const std::vector<Interval> windows = scenario->calcVectorOfIntervals();
  if (runIndex >= windows.size()) throw std::invalid_argument("Invalid index value!");
  const auto& serie = Stats::isAInputSerie(type) ? element.getInputSerie(type)
                                                 : element.getOutputSerie(type, runIndex);
  return over(serie, windows[runIndex].getBegin(), windows[runIndex].getEnd());
}

double AutomaticReportSerieMinValue::over(const std::shared_ptr<Serie>& serie, const Date& begin,
                                          const Date& end) const {
  return Stats::getMinValue(serie, begin, end);
}

double AutomaticReportSerieMaxValue::over(const std::shared_ptr<Serie>& serie, const Date& begin,
                                          const Date& end) const {
  return Stats::getMaxValue(serie, begin, end);
}

double AutomaticReportSerieSumValue::over(const std::shared_ptr<Serie>& serie, const Date& begin,
                                          const Date& end) const {
  return Stats::sumSerieValuesInInterval(serie, begin, end);
}

double AutomaticReportSerieAverageValue::over(const std::shared_ptr<Serie>& serie,
                                              const Date& begin, const Date& end) const {
  return Stats::averageOfSerieValuesInInterval(serie, begin, end);
}

double AutomaticReportSerieVariancePopulationValue::over(const std::shared_ptr<Serie>& serie,
                                                         const Date& begin, const Date& end) const {
  return Stats::varianceOverPopulationOfSerieValuesInInterval(serie, begin, end);
}

double AutomaticReportSerieVarianceSampleValue::over(const std::shared_ptr<Serie>& serie,
                                                     const Date& begin, const Date& end) const {
  return Stats::varianceOverSampleOfSerieValuesInInterval(serie, begin, end);
}

double AutomaticReportSerieStdDeviationPopulationValue::over(const std::shared_ptr<Serie>& serie,
                                                             const Date& begin,
                                                             const Date& end) const {
  return Stats::stdDeviationOverPopulationOfSerieValuesInInterval(serie, begin, end);
}

double AutomaticReportSerieStdDeviationSampleValue::over(const std::shared_ptr<Serie>& serie,
                                                         const Date& begin, const Date& end) const {
  return Stats::stdDeviationOverSampleOfSerieValuesInInterval(serie, begin, end);
}
