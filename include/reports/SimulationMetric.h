#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "common/Date.h"
#include "common/Interval.h"
#include "core/Element.h"
#include "core/Scenario.h"
#include "hydrology/HydrologicalBalance.h"
#include "reports/CellData.h"
#include "reports/SimulationMetricsEnum.h"

// A performance figure of one demand or one reservoir over one run (window) of a scenario.
//
// Every metric follows the same rules. Its cell starts empty (-999.0) with the metric's type of
// data, and stays so when the element is not of the metric's class or the run index is not one
// of the scenario's windows. Otherwise the metric walks the dates of the window, one step of the
// periodicity at a time, reading each result series it needs once per date. Comparisons allow
// 1e-6: a period failed when "Falha no atendimento" is 1 within it, a value is below (above)
// another when their difference, taken as zero within it, is negative (positive). Flows become
// volumes through the hydrological balance of the window's periodicity, months counting their
// own days. A result without meaning (a division by nothing) leaves the cell empty.
class SimulationMetric {
 public:
  // The dates of one window and the conversion of its flows into volumes.
  class Run {
   public:
    // Throws std::invalid_argument "HydrologicalBalanceFactory::make(): invalid periodicity"
    // for a periodicity outside the vocabulary.
    Run(const Interval& interval, unsigned int runIndex);

    // The window's interval.
    const Interval& getInterval() const { return interval; }
    // The dates of the window's periods, in order; n is their number.
    const std::vector<Date>& getDates() const { return dates; }
    std::size_t size() const { return dates.size(); }
    // The values of the element's result series of a kind on each date of the window. Throws
    // std::invalid_argument "Invalid index value!" when the element has no results for the
    // window, and "Invalid serie type!" when it lacks the kind.
    std::vector<double> read(const Element& element, SerieType type) const;
    // The volume of a flow over the period of the t-th date: m³/s -> hm³.
    double hm3(std::size_t t, double flow) const { return balance->hm3(dates[t], flow); }

   private:
    Interval interval;
    unsigned int runIndex;
    std::vector<Date> dates;
    std::vector<unsigned int> julians;
    std::shared_ptr<HydrologicalBalance> balance;
  };

  virtual ~SimulationMetric() = default;

  // The type of data of the metric's cells: whole numbers or floating values.
  virtual TypeOfData getReturnType() const { return returnType; }
  // The metric's name as users see it ("Vulnerabilidade").
  virtual const std::string& getName() const { return kind->getName(); }
  // The unit in parentheses ("(%)", "(hm³)", "(meses)").
  virtual const std::string& getUnit() const { return unit; }
  // The metric of element over window runIndex of scenario. Throws std::invalid_argument
  // "Invalid index value!" when the element (or a demand or reservoir downstream of it) lacks
  // the window's results, and "Invalid serie type!" when one lacks a series the metric reads.
  virtual std::shared_ptr<CellData> calculate(const std::shared_ptr<Element>& element,
                                              const std::shared_ptr<Scenario>& scenario,
                                              unsigned int runIndex) const;

 protected:
  static constexpr double kTolerance = 1e-6;

  SimulationMetric(SimulationMetricsTypeDefinition kind, std::string unit, TypeOfData returnType);

  // Whether the element is of the class the metric measures.
  virtual bool measures(const Element& element) const = 0;
  // The value over the window, or -999.0 when it has none; element is of the measured class.
  virtual double compute(const std::shared_ptr<Element>& element, const Run& run) const = 0;

  // "Falha no atendimento" marks a failed period.
  static bool failed(double supplyFailure);
  static bool below(double value, double reference);
  static bool above(double value, double reference);
  static std::size_t count(const std::vector<bool>& flags);
  // The longest stretch of consecutive true flags.
  static std::size_t longestRun(const std::vector<bool>& flags);
  // part * 100 / whole, or -999.0 when whole is 0.
  static double percentage(double part, double whole);

 private:
  std::shared_ptr<SimulationMetricsEnum> kind;
  std::string unit;
  TypeOfData returnType;
};
