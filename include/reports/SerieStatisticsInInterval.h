#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "common/Serie.h"
#include "core/Element.h"

// Statistics of the values of series dated between two dates, both included. Missing values
// (-999.0) take no part, and a statistic without enough values to mean anything gives -999.0.
// Every function throws std::invalid_argument "The serie is a null pointer" for a null series.
// The element forms pool the values of one kind of series of every element: the input series
// for an input kind (isAInputSerie), otherwise the results of window runIndex, with
// Element::getOutputSerie's failures.
class SerieStatisticsInInterval {
 public:
  using Elements = std::vector<std::shared_ptr<Element>>;

  // The sum of the values; 0 without values.
  static double sumSerieValuesInInterval(const std::shared_ptr<Serie>& serie, const Date& begin,
                                         const Date& end);
  static double sumSerieValuesInIntervalOfElements(const Elements& elements, SerieType type,
                                                   const Date& begin, const Date& end,
                                                   unsigned int runIndex);
  // The mean of the values.
  static double averageOfSerieValuesInInterval(const std::shared_ptr<Serie>& serie,
                                               const Date& begin, const Date& end);
  static double averageOfSerieValuesInIntervalOfElements(const Elements& elements, SerieType type,
                                                         const Date& begin, const Date& end,
                                                         unsigned int runIndex);
  static double getMinValue(const std::shared_ptr<Serie>& serie, const Date& begin,
                            const Date& end);
  static double getMaxValue(const std::shared_ptr<Serie>& serie, const Date& begin,
                            const Date& end);
  // The sum of the values and how many there are.
  static std::pair<double, unsigned int> sumAndCountSerieValuesInInterval(
      const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end);
  // sum((v - mean)^2) / n.
  static double varianceOverPopulationOfSerieValuesInInterval(const std::shared_ptr<Serie>& serie,
                                                              const Date& begin, const Date& end);
  static double stdDeviationOverPopulationOfSerieValuesInInterval(
      const std::shared_ptr<Serie>& serie, const Date& begin, const Date& end);
  // sum((v - mean)^2) / (n - 1); -999.0 for fewer than two values.
  static double varianceOverSampleOfSerieValuesInInterval(const std::shared_ptr<Serie>& serie,
                                                          const Date& begin, const Date& end);
  static double stdDeviationOverSampleOfSerieValuesInInterval(const std::shared_ptr<Serie>& serie,
                                                              const Date& begin, const Date& end);
  // True for the kinds users supply ({0, 1, 2, 3, 5, 7, 42}); "Volume meta" counts as input.
  static bool isAInputSerie(SerieType type);

 private:
  static std::vector<double> valuesInInterval(const std::shared_ptr<Serie>& serie,
                                              const Date& begin, const Date& end);
  static std::vector<double> valuesOfElements(const Elements& elements, SerieType type,
                                              const Date& begin, const Date& end,
                                              unsigned int runIndex);
};
