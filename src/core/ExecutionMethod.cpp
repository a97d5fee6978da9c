#include "core/ExecutionMethod.h"

#include <algorithm>
#include <stdexcept>

#include "common/Calendar.h"
#include "core/IntervalWindowed.h"
#include "core/LinkAddonPumping.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "core/ResultFactory.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr double kUnlimitedDemand = 99999.0;  // m³/s

}  // namespace

ExecutionMethod::ExecutionMethod(ExecutionType type) : executionType(Vocabulary::of(type)) {}

std::shared_ptr<ExecutionMethod> ExecutionMethod::copy() const {
  std::shared_ptr<ExecutionMethod> method = copySpecific();
  method->windowSize = windowSize;
  method->zeroContribution = zeroContribution;
  method->yearsDate = yearsDate;
  method->initialMonth = initialMonth;
  return method;
}

void ExecutionMethod::initializeYearsWindow(const Interval& interval, unsigned int startMonth,
                                            bool checked) {
  initialMonth = static_cast<unsigned char>(startMonth);
  yearsDate.clear();
  Date start = interval.getBegin();
  while (start.getMonth() != startMonth && start <= interval.getEnd()) {
    start += Calendar::incInterval(start, interval);
  }
  while (start <= interval.getEnd()) {
    if (IntervalWindowed::stepForward(start, windowSize - 1, interval) > interval.getEnd()) break;
    yearsDate.emplace_back(start, checked);
    start = IntervalWindowed::stepForward(start, 12, interval);
  }
}

void ExecutionMethod::setWindowSize(unsigned int value) {
  if (value == 0) {
    throw std::invalid_argument(
        "ExecutionMethod::setWindowSize(): the window size must be at least 1");
  }
  windowSize = value;
}

void ExecutionMethod::setYearCheckByIndex(unsigned int index, bool checked) {
  if (index >= yearsDate.size()) {
    throw std::out_of_range("ExecutionMethod::setYearCheckByIndex: invalid index");
  }
  yearsDate[index].second = checked;
}

void ExecutionMethod::createContinuousResults(const Elements& elements, const Interval& interval,
                                              ScenarioType scenarioType) {
  for (const auto& element : elements) {
    if (!element->isEnabled()) continue;
    element->setOutputSeries(
        ResultFactory::make({ExecutionType::continuous, element->getType(), scenarioType}, 1));
    element->setIntervalSeries(interval);
    // A run writes every result on every period: room for them all is made once.
    for (const auto& serie : element->getOutputSeries().front()->makeVectorOfSeries()) {
      serie->reserve(interval.period());
    }
  }
}

void ExecutionMethod::restartContinuousResults(const Elements& elements, const Interval& interval,
                                               ScenarioType scenarioType) {
  const bool made = std::all_of(elements.begin(), elements.end(), [](const auto& element) {
    return !element->isEnabled() || element->getOutputSeries().size() == 1;
  });
  if (!made) {
    createContinuousResults(elements, interval, scenarioType);
    return;
  }
  for (const auto& element : elements) {
    if (!element->isEnabled()) continue;
    for (const auto& serie : element->getOutputSeries().front()->makeVectorOfSeries()) {
      serie->clear();
    }
    element->setIntervalSeries(interval);
  }
}

void ExecutionMethod::configureDrainDemands(const Elements& drains, const Interval& interval) {
  for (const auto& drain : drains) {
    if (drain->isEnabled()) drain->getInputSerie(SerieType::demand)->fill(kUnlimitedDemand, interval);
  }
}

void ExecutionMethod::configureReservoirsCav(const Elements& reservoirs) {
  for (const auto& element : reservoirs) {
    std::static_pointer_cast<Reservoir>(element)->getReservoirInfo().calculateCav(
        ReservoirInfo::volume);
  }
}

void ExecutionMethod::configureZeroContribution(const SettingsManager& settingsManager,
                                                const Elements& reservoirs) const {
  for (const auto& reservoir : reservoirs) {
    auto settings = std::dynamic_pointer_cast<ReservoirRuleSettings>(
        settingsManager.getSettings(reservoir->getId()));
    if (!settings) throw std::invalid_argument("Passed element is not valid for element setting");
    if (settings->getRule()) settings->getRule()->setZeroContribution(zeroContribution);
  }
}

void ExecutionMethod::configureLinkAddonPumping(const std::vector<std::shared_ptr<Link>>& links) {
  for (const auto& link : links) {
    if (link->getLinkAddon()->getType() == LinkAddonType::pumping) {
      std::static_pointer_cast<LinkAddonPumping>(link->getLinkAddon())->regressionCalculation();
    }
  }
}

void ExecutionMethod::backupReservoirsLinks(const Elements& reservoirs) {
  for (const auto& element : reservoirs) std::static_pointer_cast<Reservoir>(element)->backupLinks();
}
