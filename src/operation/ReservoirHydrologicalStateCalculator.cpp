#include "operation/ReservoirHydrologicalStateCalculator.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

#include "core/ElementSets.h"
#include "core/Reservoir.h"

namespace {

using Calculator = ReservoirHydrologicalStateCalculator::Calculator;
using Settings = ReservoirHydrologicalStateCalculator::Settings;
using ElementPtr = std::shared_ptr<Element>;
using H = HydrologicalStateType;

using PriorityAnswer =
    std::function<unsigned int(const ElementPtr&, const Settings&, const Calculator&,
                               const Interval&, const Date&, unsigned int)>;
using TargetAnswer =
    std::function<std::shared_ptr<Serie>(const ElementPtr&, const Settings&, const Calculator&,
                                         const Interval&, const Date&, unsigned int)>;
using DemandAnswer =
    std::function<std::shared_ptr<Serie>(const ElementPtr&, const Settings&, const Calculator&)>;

std::shared_ptr<PriorityReservoirSettings> reservoirSettings(const Settings& settings) {
  auto cast = std::dynamic_pointer_cast<PriorityReservoirSettings>(settings);
  if (!cast) throw std::invalid_argument("Passed element is not valid for element setting");
  return cast;
}

bool isDemand(const ElementPtr& element) {
  return ElementSets::demands().count(element->getType()) != 0;
}

unsigned int noneHydrologicalStatePriority(const ElementPtr&, const Settings& settings,
                                           const Calculator&, const Interval&, const Date&,
                                           unsigned int) {
  return settings->getPriority();
}

unsigned int defaultHydrologicalStatePriority(const ElementPtr&, const Settings& settings,
                                              const Calculator& calculator, const Interval&,
                                              const Date&, unsigned int) {
  return calculator->getPriority(settings);
}

// Demands have no zones: they keep their own priority whatever the reservoirs' zones.
unsigned int hydrologicalStatePerReservoirPriority(const ElementPtr& element,
                                                   const Settings& settings,
                                                   const Calculator& calculator,
                                                   const Interval& interval, const Date& date,
                                                   unsigned int windowIndex) {
  if (isDemand(element)) return settings->getPriority();
  return calculator->getPriorityPerReservoir(element, reservoirSettings(settings), interval, date,
                                             windowIndex);
}

unsigned int hydrologicalStatePerReservoirMonthlyPriority(
    const ElementPtr& element, const Settings& settings, const Calculator& calculator,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  if (isDemand(element)) return settings->getPriority();
  return calculator->getPriorityPerReservoirMonthly(element, reservoirSettings(settings), interval,
                                                    date, windowIndex);
}

std::shared_ptr<Serie> noneHydrologicalStateTargetVolume(const ElementPtr& element, const Settings&,
                                                         const Calculator&, const Interval&,
                                                         const Date&, unsigned int) {
  return element->getInputSerie(SerieType::targetVolume);
}

std::shared_ptr<Serie> defaultHydrologicalStateTargetVolume(const ElementPtr&,
                                                            const Settings& settings,
                                                            const Calculator& calculator,
                                                            const Interval&, const Date&,
                                                            unsigned int) {
  return calculator->getTargetVolume(settings);
}

std::shared_ptr<Serie> hydrologicalStatePerReservoirTargetVolume(
    const ElementPtr& element, const Settings& settings, const Calculator& calculator,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return calculator->getTargetPerReservoirVolume(element, reservoirSettings(settings), interval,
                                                 date, windowIndex);
}

std::shared_ptr<Serie> hydrologicalStatePerReservoirMonthlyTargetVolume(
    const ElementPtr& element, const Settings& settings, const Calculator& calculator,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return calculator->getTargetPerReservoirMonthlyVolume(element, reservoirSettings(settings),
                                                        interval, date, windowIndex);
}

std::shared_ptr<Serie> noneHydrologicalStateWaterDemand(const ElementPtr& element, const Settings&,
                                                        const Calculator&) {
  return element->getInputSerie(SerieType::demand);
}

std::shared_ptr<Serie> defaultHydrologicalStateWaterDemand(const ElementPtr&,
                                                           const Settings& settings,
                                                           const Calculator& calculator) {
  return calculator->getWaterDemand(settings);
}

// Zones belong to reservoirs: under them a demand asks for its own input demand.
std::shared_ptr<Serie> hydrologicalStatePerReservoirWaterDemand(const ElementPtr& element,
                                                                const Settings&,
                                                                const Calculator&) {
  return element->getInputSerie(SerieType::demand);
}

template <typename Answer>
const Answer& answerOf(const std::map<int, Answer>& table, const Calculator& calculator,
                       const char* method) {
  auto it = table.find(calculator->getHydrologicalStateType());
  if (it == table.end()) {
    throw std::invalid_argument(std::string("ReservoirHydrologicalStateCalculator::") + method +
                                "(): invalid hydrological state type");
  }
  return it->second;
}

int key(H type) { return static_cast<int>(type); }

const std::map<int, PriorityAnswer>& priorityTable() {
  static const std::map<int, PriorityAnswer> table = {
      {key(H::none), noneHydrologicalStatePriority},
      {key(H::standard), defaultHydrologicalStatePriority},
      {key(H::perReservoir), hydrologicalStatePerReservoirPriority},
      {key(H::perReservoirMonthly), hydrologicalStatePerReservoirMonthlyPriority},
  };
  return table;
}

const std::map<int, TargetAnswer>& targetTable() {
  static const std::map<int, TargetAnswer> table = {
      {key(H::none), noneHydrologicalStateTargetVolume},
      {key(H::standard), defaultHydrologicalStateTargetVolume},
      {key(H::perReservoir), hydrologicalStatePerReservoirTargetVolume},
      {key(H::perReservoirMonthly), hydrologicalStatePerReservoirMonthlyTargetVolume},
  };
  return table;
}

const std::map<int, DemandAnswer>& demandTable() {
  static const std::map<int, DemandAnswer> table = {
      {key(H::none), noneHydrologicalStateWaterDemand},
      {key(H::standard), defaultHydrologicalStateWaterDemand},
      {key(H::perReservoir), hydrologicalStatePerReservoirWaterDemand},
      {key(H::perReservoirMonthly), hydrologicalStatePerReservoirWaterDemand},
  };
  return table;
}

}  // namespace

unsigned int ReservoirHydrologicalStateCalculator::getElementPriority(
    const std::shared_ptr<Element>& element, const Settings& settings, const Calculator& calculator,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return answerOf(priorityTable(), calculator, "getElementPriority")(element, settings, calculator,
                                                                     interval, date, windowIndex);
}

std::shared_ptr<Serie> ReservoirHydrologicalStateCalculator::getTargetVolume(
    const std::shared_ptr<Element>& element, const Settings& settings, const Calculator& calculator,
    const Interval& interval, const Date& date, unsigned int windowIndex) {
  return answerOf(targetTable(), calculator, "getTargetVolume")(element, settings, calculator,
                                                                interval, date, windowIndex);
}

std::shared_ptr<Serie> ReservoirHydrologicalStateCalculator::getWaterDemand(
    const std::shared_ptr<Element>& element, const Settings& settings,
    const Calculator& calculator) {
  return answerOf(demandTable(), calculator, "getWaterDemand")(element, settings, calculator);
}

std::vector<std::vector<double>>
ReservoirHydrologicalStateCalculator::getVolumesHydrologicalStatePerReservoirMonthly(
    const std::shared_ptr<Element>& element,
    const std::shared_ptr<PriorityReservoirSettings>& settings) {
  const double maxVol = std::static_pointer_cast<Reservoir>(element)->getReservoirInfo().maxVol;
  const std::size_t width = settings->getVectorOfHydrologicalZonesMonthly(0).size();
  std::vector<std::vector<double>> table;
  for (unsigned int month = 0; month < 12; ++month) {
    const auto& zones = settings->getVectorOfHydrologicalZonesMonthly(month);
    std::vector<double> row;
    double top = 0.0;
    for (std::size_t i = 0; i < width; ++i) {
      top += zones.at(i).value;
      row.push_back(top * maxVol);
    }
    table.push_back(std::move(row));
  }
  return table;
}
