#pragma once

#include <memory>
#include <string>

#include "checks/CheckCompleteness.h"
#include "common/Interval.h"
#include "common/Serie.h"

// Checks that a series holds a value, not negative, on every period of an interval. A finding
// names the element, the series, the date and the value.
class SerieCheck : public CheckCompleteness {
 public:
  SerieCheck(std::shared_ptr<Serie> serie, const Interval& interval, std::string elementName);

  void check() override;
  // "<element>-<series>-<dd-mm-yyyy>-<value>".
  virtual std::string getInfo(const Date& date) const;

 protected:
  const std::shared_ptr<Serie>& getSerie() const { return serie; }
  const std::string& getElementName() const { return elementName; }

 private:
  std::shared_ptr<Serie> serie;
  Interval interval;
  std::string elementName;
};

// The same for the series of one hydrological state, whose description also tells the state.
class HydrologicalStateSerieCheck : public SerieCheck {
 public:
  HydrologicalStateSerieCheck(std::shared_ptr<Serie> serie, const Interval& interval,
                              std::string elementName, unsigned int numOfState,
                              unsigned int numOfStates);

  // As SerieCheck's, followed by "-<state> de <states>" when there are states.
  std::string getInfo(const Date& date) const override;

 private:
  unsigned int numOfState;
  unsigned int numOfStates;
};
