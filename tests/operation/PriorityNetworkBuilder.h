#pragma once

#include <memory>
#include <optional>

#include "common/Calendar.h"
#include "core/Demand.h"
#include "core/PriorityReservoirSettings.h"
#include "hydrology/HydrologicalBalance.h"
#include "operation/ExecutionContinuous.h"
#include "scenario/PriorityScenario.h"
#include "support/NetworkBuilder.h"
#include "vocabulary/Vocabulary.h"

// Builds monthly priority scenarios in code. Reservoirs have neither rain nor evaporation, so
// that volumes can be followed by hand; goals are given as volumes of the period (hm³).
class PriorityNetworkBuilder {
 public:
  explicit PriorityNetworkBuilder(unsigned int months = 3)
      : scenario(std::make_shared<PriorityScenario>(
            std::make_shared<ExecutionContinuous>(), 1,
            Interval(Date(2001, 1, 1), Date(2001, months, 1), Vocabulary::of(Periodicity::monthly)),
            "Prioridades")) {}

  std::shared_ptr<Node> node(ElementType type) { return addNode(*scenario, type); }

  // A reservoir without inflow whose target volume is `goal` of its capacity, by default its
  // minimum volume: nothing to keep above it. Its table starts from an empty row after the
  // origin, so that every minimum volume lies within it.
  std::shared_ptr<Reservoir> reservoir(double minVol, double maxVol, double initVol,
                                       unsigned int priority,
                                       std::optional<double> goal = std::nullopt) {
    auto r = std::static_pointer_cast<Reservoir>(node(ElementType::reservoir));
    ReservoirInfo& info = r->getReservoirInfo();
    info.cav = {{500, 0, 0},    {500, 0, 0},    {505, 20, 50},
                {510, 45, 200}, {515, 80, 500}, {520, 120, 2000}};
    info.minVol = minVol;
    info.maxVol = maxVol;
    info.initVol = initVol;
    for (SerieType type :
         {SerieType::precipitation, SerieType::evaporation, SerieType::naturalIncrementalFlow}) {
      r->getInputSerie(type)->fill(0.0);
    }
    r->getInputSerie(SerieType::targetVolume)->fill(goal.value_or(minVol / maxVol));
    settings(r)->setPriority(priority);
    return r;
  }

  // A demand asking for `volume` hm³ in every month.
  std::shared_ptr<Demand> demand(double volume, unsigned int priority,
                                 ElementType type = ElementType::humanDemand) {
    auto d = std::static_pointer_cast<Demand>(node(type));
    setDemand(d, volume);
    settings(d)->setPriority(priority);
    return d;
  }

  void setDemand(const std::shared_ptr<Node>& demand, double volume) {
    for (Date date = interval().getBegin(); date <= interval().getEnd(); date = next(date)) {
      demand->getInputSerie(SerieType::demand)->setValue(date, m3s(date, volume));
    }
  }

  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             double lossPercentage = 0.0, double limit = 9999.0,
                             ElementType type = ElementType::naturalLink) {
    return addLink(*scenario, up, down, limit, lossPercentage, type);
  }

  template <typename T = PrioritySettings>
  std::shared_ptr<T> settings(const std::shared_ptr<Element>& element) const {
    return Scenario::getSettings<T>(element, scenario->getSettingsManager());
  }

  const Interval& interval() const { return scenario->getInterval(); }
  Date next(const Date& date) const { return date + Calendar::incInterval(date, interval()); }
  static double m3s(const Date& date, double volume) { return monthly().m3s(date, volume); }
  static double hm3(const Date& date, double flow) { return monthly().hm3(date, flow); }

  // The volume a link took in the month of date, hm³.
  static double taken(const std::shared_ptr<Link>& link, const Date& date) {
    return hm3(date, link->getOutputSerie(SerieType::inflow, 0)->getValue(date));
  }
  static double output(const std::shared_ptr<Element>& element, SerieType type, const Date& date) {
    return element->getOutputSerie(type, 0)->getValue(date);
  }

  std::shared_ptr<PriorityScenario> scenario;

 private:
  static const HydrologicalBalance& monthly() {
    static const HydrologicalBalanceMonthly balance;
    return balance;
  }
};
