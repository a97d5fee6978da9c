#include "core/SerieManager.h"

#include <fstream>
#include <set>
#include <stdexcept>

#include "common/PeriodWalker.h"
#include "common/StringUtils.h"
#include "core/ElementsFilter.h"
#include "core/Scenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr const char* kCsvError = "SerieManager::fillSerieFromCSVFile(): ";

void readCsvLine(const std::string& line, std::size_t number, char separator, Serie& serie) {
  const std::vector<std::string> fields = StringUtils::split(line, separator);
  try {
    if (fields.size() < 2) throw std::invalid_argument("missing value");
    serie.setValue(Date::fromString(StringUtils::trim(fields[0]), "%d-%m-%Y"),
                   StringUtils::stdStringToDouble(StringUtils::trim(fields[1])));
  } catch (const std::invalid_argument&) {
    serie.clear();
    throw std::runtime_error(std::string(kCsvError) + "invalid line " + std::to_string(number));
  }
}

ElementsFilter::Elements qualifyingElements(const Scenario& scenario, ElementType elementType) {
  return ElementsFilter::filterByEnabledElements(
      ElementsFilter::filterByType(scenario.getElements(), {elementType}));
}

}  // namespace

void SerieManager::fill(const std::shared_ptr<Serie>& serie, const double& value) {
  serie->fill(value);
}

void SerieManager::copy(const std::shared_ptr<Serie>& from, const std::shared_ptr<Serie>& to) {
  to->copyFrom(from);
}

std::vector<double> SerieManager::values(const std::shared_ptr<Serie>& serie) {
  std::vector<double> result;
  result.reserve(serie->size());
  for (const auto& entry : serie->getMapOfJulianToValues()) result.push_back(entry.second);
  return result;
}

std::vector<std::string> SerieManager::strValues(const std::shared_ptr<Serie>& serie) {
  std::vector<std::string> result;
  for (double value : values(serie)) result.push_back(StringUtils::floatingToStdString(value, 6));
  return result;
}

std::shared_ptr<Serie> SerieManager::filter(const std::shared_ptr<Serie>& serie,
                                            const Interval& interval) {
  auto result = std::make_shared<Serie>(interval, serie->getEnumType(), serie->getUnit());
  const unsigned int first = Date::julian(interval.getBegin());
  const unsigned int last = Date::julian(interval.getEnd());
  for (const auto& entry : serie->getMapOfJulianToValues()) {
    if (entry.first >= first && entry.first <= last) result->setValue(entry.first, entry.second);
  }
  return result;
}

std::shared_ptr<Serie> SerieManager::getSumSerie(const std::vector<std::shared_ptr<Serie>>& series) {
  if (series.empty()) return nullptr;
  std::set<unsigned int> dates;
  for (const auto& serie : series) {
    for (const auto& entry : serie->getMapOfJulianToValues()) dates.insert(entry.first);
  }
  auto sum = std::make_shared<Serie>(series[0]->getInterval(), series[0]->getEnumType(),
                                     series[0]->getUnit());
  for (unsigned int julian : dates) {
    double total = 0.0;
    for (const auto& serie : series) {
      auto it = serie->getMapOfJulianToValues().find(julian);
      total += it == serie->getMapOfJulianToValues().end() ? Serie::kEmptyValue : it->second;
    }
    sum->setValue(julian, total);
  }
  return sum;
}

void SerieManager::fillSerieFromCSVFile(const std::string& path,
                                        const std::shared_ptr<Serie>& serie, char separator) {
  serie->clear();
  std::ifstream file(path);
  if (!file) throw std::runtime_error(std::string(kCsvError) + "Cannot open the input file");
  std::string line;
  if (!std::getline(file, line) || StringUtils::trim(line).empty()) {
    throw std::runtime_error(std::string(kCsvError) + "invalid file");
  }
  std::size_t number = 1;
  while (std::getline(file, line)) {
    ++number;
    if (StringUtils::trim(line).empty()) continue;
    readCsvLine(line, number, separator, *serie);
  }
}

std::shared_ptr<Serie> SerieManager::monthlyFromDaily(const std::shared_ptr<Serie>& daily,
                                                      const Interval& interval) {
  const Date first(interval.getBegin().getYear(), interval.getBegin().getMonth(), 1);
  const Date last(interval.getEnd().getYear(), interval.getEnd().getMonth(), 1);
  const Interval months(first, last, Vocabulary::of(Periodicity::monthly));
  auto monthly = std::make_shared<Serie>(months, daily->getEnumType(), daily->getUnit());
  PeriodWalker::forEach(months, [&](const Date& month) {
    double sum = 0.0;
    Date day = month;
    for (unsigned int i = 0; i < month.daysInMonth(); ++i, ++day) {
      const double value = daily->getValue(day);
      if (value != Serie::kEmptyValue) sum += value;
    }
    monthly->setValue(month, sum / month.daysInMonth());
  });
  return monthly;
}

std::shared_ptr<Serie> SerieManager::getWndSumSerieByType(const std::shared_ptr<Scenario>& scenario,
                                                          SerieType type, ElementType elementType,
                                                          unsigned int windowIndex) {
  std::vector<std::shared_ptr<Serie>> series;
  for (const auto& element : qualifyingElements(*scenario, elementType)) {
    series.push_back(element->getOutputSerie(type, windowIndex));
  }
  return getSumSerie(series);
}

std::vector<std::shared_ptr<Serie>> SerieManager::getAllWndSumSeriesByType(
    const std::shared_ptr<Scenario>& scenario, SerieType type, ElementType elementType) {
  const auto elements = qualifyingElements(*scenario, elementType);
  std::vector<std::shared_ptr<Serie>> sums;
  if (elements.empty()) return sums;
  const auto windows = static_cast<unsigned int>(elements.front()->getOutputSeries().size());
  for (unsigned int window = 0; window < windows; ++window) {
    sums.push_back(getWndSumSerieByType(scenario, type, elementType, window));
  }
  return sums;
}
