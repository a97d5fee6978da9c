#include "checks/SerieCheck.h"

#include <cstdio>

#include "common/NumericalUtils.h"
#include "common/PeriodWalker.h"

SerieCheck::SerieCheck(std::shared_ptr<Serie> serie, const Interval& interval,
                       std::string elementName)
    : serie(std::move(serie)), interval(interval), elementName(std::move(elementName)) {}

void SerieCheck::check() {
  clearErrors();
  PeriodWalker::forEach(interval, [&](const Date& date) {
    const double value = serie->getValue(date);
    const bool empty = NumericalUtils::compareDoubles(value, Serie::kEmptyValue, 1e-6);
    if (!empty && NumericalUtils::subtractDoubles(value, 0.0, 1e-6) < 0.0) {
      addError(getInfo(date), "Valor negativo em:");
    }
    if (empty) addError(getInfo(date), "Valor vazio em:");
  });
}

std::string SerieCheck::getInfo(const Date& date) const {
  char value[64];
  std::snprintf(value, sizeof(value), "%f", serie->getValue(date));
  return elementName + "-" + serie->getName() + "-" + date.toString("%d-%m-%Y") + "-" + value;
}

HydrologicalStateSerieCheck::HydrologicalStateSerieCheck(std::shared_ptr<Serie> serie,
                                                         const Interval& interval,
                                                         std::string elementName,
                                                         unsigned int numOfState,
                                                         unsigned int numOfStates)
    : SerieCheck(std::move(serie), interval, std::move(elementName)),
      numOfState(numOfState),
      numOfStates(numOfStates) {}

std::string HydrologicalStateSerieCheck::getInfo(const Date& date) const {
  std::string info = SerieCheck::getInfo(date);
  if (numOfStates != 0) {
    info += "-" + std::to_string(numOfState + 1) + " de " + std::to_string(numOfStates);
  }
  return info;
}
