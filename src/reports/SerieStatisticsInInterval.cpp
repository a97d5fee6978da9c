#include "reports/SerieStatisticsInInterval.h"

#include <cmath>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/VectorStatistics.h"
#include "vocabulary/Vocabulary.h"

std::vector<double> SerieStatisticsInInterval::valuesInInterval(const std::shared_ptr<Serie>& serie,
                                                                const Date& begin,
                                                                const Date& end) {
  if (!serie) throw std::invalid_argument("The serie is a null pointer");
  const unsigned int first = Date::julian(begin);
  const unsigned int last = Date::julian(end);
  std::vector<double> values;
  for (const auto& entry : serie->getMapOfJulianToValues()) {
    if (entry.first < first || entry.first > last || NumericalUtils::isEmpty(entry.second)) {
      continue;
    }
    values.push_back(entry.second);
  }
  return values;
}

std::vector<double> SerieStatisticsInInterval::valuesOfElements(const Elements& elements,
                                                                SerieType type, const Date& begin,
                                                                const Date& end,
                                                                unsigned int runIndex) {
  std::vector<double> pooled;
  for (const auto& element : elements) {
    const auto serie = isAInputSerie(type) ? element->getInputSerie(type)
                                           : element->getOutputSerie(type, runIndex);
    const std::vector<double> values = valuesInInterval(serie, begin, end);
    pooled.insert(pooled.end(), values.begin(), values.end());
  }
  return pooled;
}

double SerieStatisticsInInterval::sumSerieValuesInInterval(const std::shared_ptr<Serie>& serie,
                                                           const Date& begin, const Date& end) {
  return VectorStatistics::sum(valuesInInterval(serie, begin, end));
}

double SerieStatisticsInInterval::sumSerieValuesInIntervalOfElements(const Elements& elements,
                                                                     SerieType type,
                                                                     const Date& begin,
                                                                     const Date& end,
                                                                     unsigned int runIndex) {
  return VectorStatistics::sum(valuesOfElements(elements, type, begin, end, runIndex));
}

double SerieStatisticsInInterval::averageOfSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return values.empty() ? Serie::kEmptyValue : VectorStatistics::average(values);
}

double SerieStatisticsInInterval::averageOfSerieValuesInIntervalOfElements(const Elements& elements,
                                                                           SerieType type,
                                                                           const Date& begin,
                                                                           const Date& end,
                                                                           unsigned int runIndex) {
  const std::vector<double> values = valuesOfElements(elements, type, begin, end, runIndex);
  return values.empty() ? Serie::kEmptyValue : VectorStatistics::average(values);
}

double SerieStatisticsInInterval::getMinValue(const std::shared_ptr<Serie>& serie,
                                              const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return values.empty() ? Serie::kEmptyValue : VectorStatistics::min(values);
}

double SerieStatisticsInInterval::getMaxValue(const std::shared_ptr<Serie>& serie,
                                              const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return values.empty() ? Serie::kEmptyValue : VectorStatistics::max(values);
}

std::pair<double, unsigned int> SerieStatisticsInInterval::sumAndCountSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return {VectorStatistics::sum(values), static_cast<unsigned int>(values.size())};
}

double SerieStatisticsInInterval::varianceOverPopulationOfSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return values.empty() ? Serie::kEmptyValue : VectorStatistics::populationVariance(values);
}

double SerieStatisticsInInterval::stdDeviationOverPopulationOfSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const double variance = varianceOverPopulationOfSerieValuesInInterval(serie, begin, end);
  return NumericalUtils::isEmpty(variance) ? variance : std::sqrt(variance);
}

double SerieStatisticsInInterval::varianceOverSampleOfSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const std::vector<double> values = valuesInInterval(serie, begin, end);
  return values.size() < 2 ? Serie::kEmptyValue : VectorStatistics::sampleVariance(values);
}

double SerieStatisticsInInterval::stdDeviationOverSampleOfSerieValuesInInterval(
    const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end) {
  const double variance = varianceOverSampleOfSerieValuesInInterval(serie, begin, end);
  return NumericalUtils::isEmpty(variance) ? variance : std::sqrt(variance);
}

bool SerieStatisticsInInterval::isAInputSerie(SerieType type) {
  return Vocabulary::inputSerieTypes().count(type) != 0;
}
