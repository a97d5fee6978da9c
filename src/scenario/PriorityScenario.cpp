#include "scenario/PriorityScenario.h"

#include <stdexcept>

#include "checks/SceneryCheckFactory.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ExecutionMethod.h"
#include "core/PriorityReservoirSettings.h"
#include "operation/BidirectionalLinkManager.h"
#include "operation/IsolatedPriorityOperation.h"
#include "operation/NetworkFlow.h"
#include "operation/PriorityOperation.h"
#include "scenario/IsolatedNetworkSceneryManager.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr double kUnlimitedDemand = 99999.0;  // m³/s

bool hasPrioritySeries(const std::shared_ptr<Element>& element) {
  return ElementSets::demandsWithReservoir().count(element->getType()) != 0;
}

}  // namespace

PriorityScenario::PriorityScenario(const std::shared_ptr<ExecutionMethod>& executionMethod,
                                   unsigned int id, const Interval& interval,
                                   const std::string& name)
    : Scenario(executionMethod, id, interval, name),
      hydrologicalStateConfiguration(std::make_shared<HydrologicalStateConfiguration>()),
      configureRuleElementFromPriorityAddon(
          std::make_shared<ConfigureRuleElementFromPriorityAddon>()) {}

void PriorityScenario::setConfigureRuleElementFromPriorityAddon(
    std::shared_ptr<ConfigureRuleElementFromPriorityAddon> addon) {
  if (!addon) {
    throw std::invalid_argument(
        "PriorityScenario::setConfigureRuleElementFromPriorityAddon(): the addon is nullptr");
  }
  configureRuleElementFromPriorityAddon = std::move(addon);
}

Enum<ScenarioType> PriorityScenario::getScenarioType() const {
  return Vocabulary::of(ScenarioType::priorityOptimizer);
}

void PriorityScenario::addElement(const std::shared_ptr<Element>& element, bool rename) {
  Scenario::addElement(element, rename);
  posAddElement(element, false);
}

void PriorityScenario::addElement(const std::shared_ptr<Element>& element, bool rename,
                                  unsigned int id) {
  Scenario::addElement(element, rename, id);
  posAddElement(element, false);
}

void PriorityScenario::posAddElement(const std::shared_ptr<Element>& element, bool store) {
  Scenario::posAddElement(element, store);
  if (!hasPrioritySeries(element)) return;
  if (getSettings<PrioritySettings>(element, getSettingsManager())->getPrioritySeries().empty()) {
    initPrioritySeriesOfElementSettings(element);
  }
}

void PriorityScenario::initPrioritySeriesOfElementSettings(
    const std::shared_ptr<Element>& element) {
  auto settings = getSettings<PrioritySettings>(element, getSettingsManager());
  for (unsigned int state = 0; state < hydrologicalStateConfiguration->getNumOfStates(); ++state) {
    settings->addDefaultPairOfPrioritySerie(getInterval());
  }
}

void PriorityScenario::preRun() {
  Scenario::preRun();
  if (hydrologicalStateConfiguration->getCurrentHydrologicalStateType().getType() ==
      HydrologicalStateType::standard) {
    fillDrainsForStandardStates();
  }
}

bool PriorityScenario::runIsolated(const Progress& progress) {
  if (getElements().empty()) return false;
  infeasibleDate.reset();
  setSceneryStatus(IsolatedNetworkSceneryManager::runIsolated(*this, progress));
  return getSceneryStatus().getType() == SceneryStatus::success;
}

bool PriorityScenario::run(const Progress& progress) {
  infeasibleDate.reset();
  try {
    return Scenario::run(progress);
  } catch (const NetworkFlow::NetflowOptimalException&) {
    infeasibleDate = getCurrentOperationSystem()->getDate();
    restoreNetwork();
    clearAllResults();
    setSceneryStatus(SceneryStatus::configurationError);
    return false;
  }
}

void PriorityScenario::fillDrainsForStandardStates() {
  for (const auto& drain : ElementsFilter::filterByType(getElements(), {ElementType::drain})) {
    if (!drain->isEnabled()) continue;
    for (const auto& pair :
         getSettings<PrioritySettings>(drain, getSettingsManager())->getPrioritySeries()) {
      pair.second->fill(kUnlimitedDemand, getInterval());
    }
  }
}

// A failed pass leaves the links of its date turned.
void PriorityScenario::restoreNetwork() {
  BidirectionalLinkManager::restoreInversionOnLinks(ElementsFilter::filterByLinks(getElements()));
  BidirectionalLinkManager::restoreInversionOnReservoirs(getElements());
}

std::shared_ptr<HydrologicalStateCalculator> PriorityScenario::makeHydrologicalStateCalculator()
    const {
  const Elements reservoirs = ElementsFilter::filterByEnabledElements(
      ElementsFilter::filterByType(getElements(), ElementSets::reservoir()));
  return std::make_shared<HydrologicalStateCalculator>(hydrologicalStateConfiguration,
                                                       getSettingsManager(), reservoirs,
                                                       getExecutionMethod()->getZeroContribution());
}

std::shared_ptr<OperationSystem> PriorityScenario::getOperationSystem() {
  return std::make_shared<PriorityOperation>(
      getSettingsManager(), getElements(), getInterval(), makeHydrologicalStateCalculator(),
      getExecutionMethod()->getZeroContribution(), getScenarioType());
}

std::shared_ptr<OperationSystem> PriorityScenario::getIsolatedOperationSystem(
    unsigned int isolatedScenarioId) {
  return std::make_shared<IsolatedPriorityOperation>(
      getSettingsManager(), getElements(), getInterval(), makeHydrologicalStateCalculator(),
      getExecutionMethod()->getZeroContribution(), getScenarioType(), isolatedScenarioId,
      ScenarioManager::getInstance().getSceneryIsolatedDataByID(isolatedScenarioId));
}

std::shared_ptr<Scenario> PriorityScenario::copySpecific() const {
  auto copy = std::make_shared<PriorityScenario>(getExecutionMethod()->copy(), getId(),
                                                 getInterval(), getName());
  copy->hydrologicalStateConfiguration = hydrologicalStateConfiguration->copy();
  copy->configureRuleElementFromPriorityAddon = configureRuleElementFromPriorityAddon->copy();
  return copy;
}

std::shared_ptr<SceneryCheck> PriorityScenario::makeSceneryCheck() {
  return SceneryCheckFactory::makePriorityCheck(weak_from_this());
}

bool PriorityScenario::passesSceneryCheck(SceneryCheck& check) { return check.passes(); }

void PriorityScenario::setSeriesIntervalsElements() {
  Scenario::setSeriesIntervalsElements();
  for (const auto& element :
       ElementsFilter::filterByType(getElements(), ElementSets::demandsWithReservoir())) {
    auto settings = getSettings<PrioritySettings>(element, getSettingsManager());
    for (const auto& pair : settings->getPrioritySeries()) pair.second->setInterval(getInterval());
    auto reservoir = std::dynamic_pointer_cast<PriorityReservoirSettings>(settings);
    if (!reservoir) continue;
    for (const auto& zone : reservoir->getVectorOfHydrologicalZones()) {
      zone.serie->setInterval(getInterval());
    }
    const unsigned int months = reservoir->initedVectorOfHydrologicalZonesMonthly() ? 12 : 0;
    for (unsigned int month = 0; month < months; ++month) {
      for (const auto& zone : reservoir->getVectorOfHydrologicalZonesMonthly(month)) {
        zone.serie->setInterval(getInterval());
      }
    }
  }
}

void PriorityScenario::configureZeroContribution(const Elements&) {}
