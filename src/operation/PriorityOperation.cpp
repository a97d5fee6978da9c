#include "operation/PriorityOperation.h"

#include <cstdio>

#include "common/PeriodWalker.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "core/Scenario.h"
#include "operation/BidirectionalLinkManager.h"
#include "operation/PriorityCalculator.h"
#include "operation/ReservoirHydrologicalStateCalculator.h"

PriorityOperation::PriorityOperation(
    const SettingsManager& settingsManager, const Elements& elements, const Interval& interval,
    const std::shared_ptr<HydrologicalStateCalculator>& hydrologicalStateCalculator,
    bool zeroContribution, const Enum<ScenarioType>& scenarioType)
    : OperationSystem(settingsManager, elements, interval, zeroContribution, scenarioType),
      hydrologicalStateCalculator(hydrologicalStateCalculator) {}

double PriorityOperation::release(const std::shared_ptr<Link>& link) {
  return networkFlow->releaseLinkValue(link);
}

double PriorityOperation::spill(const std::shared_ptr<Link>&) { return 0.0; }

void PriorityOperation::postProcessing(const Callback& callback) {
  writePrioritySerie();
  OperationSystem::postProcessing(callback);
}

// The lp_solve model of the last date passes to the next one: dates of the same shape solve
// without making a new one.
void PriorityOperation::setNetworkFlow() {
  std::shared_ptr<NetworkFlow> next = makeNetworkFlow();
  if (networkFlow) next->adoptSolverModel(*networkFlow);
  networkFlow = next;
}

std::shared_ptr<NetworkFlow> PriorityOperation::makeNetworkFlow() {
  return std::make_shared<NetworkFlow>(getSettingsManager(), getDate(), getInterval(),
                                       hydrologicalStateCalculator, getWindowIndex());
}

void PriorityOperation::runModel() {
  const std::vector<std::shared_ptr<Link>> links = ElementsFilter::filterByLinks(getElements());
  BidirectionalLinkManager::configureInversionOnLinks(links, getInterval(), getDate(),
                                                      getWindowIndex());
  if (getHasBidirectionalLink() && hasLoop()) {
    BidirectionalLinkManager::restoreInversionOnLinks(links);
    BidirectionalLinkManager::restoreInversionOnReservoirs(getElements());
    throw NetworkUtils::LoopException();
  }
  setNetworkFlow();
  hydrologicalStateCalculator->updateHydrologicStateValue(getDate(), getInterval(),
                                                          getWindowIndex());
  const std::vector<unsigned int> priorities = networkFlow->makePriorities(getElements());
  NetworkFlow::MapOfPriority map = networkFlow->makeMapOfPriority(getElements());
  for (unsigned int priority : priorities) {
    networkFlow->createModel(getElements(), map, priority, getZeroContribution());
    networkFlow->executeModel();
    networkFlow->writeModel(priority);
    networkFlow->writeSolution(priority);
    networkFlow->updateMapOfPriority(map);
  }
  postProcessing(nullptr);
  BidirectionalLinkManager::restoreInversionOnLinks(links);
  BidirectionalLinkManager::restoreInversionOnReservoirs(getElements());
}

std::shared_ptr<PrioritySettings> PriorityOperation::settingsOf(
    const std::shared_ptr<Element>& element) const {
  return Scenario::getSettings<PrioritySettings>(element, getSettingsManager());
}

double PriorityOperation::priorityOf(const std::shared_ptr<Element>& element) const {
  return static_cast<double>(PriorityCalculator::getPriority(
      element, settingsOf(element), hydrologicalStateCalculator, element->getType(), getInterval(),
      getDate(), getWindowIndex()));
}

void PriorityOperation::writePrioritySerie() {
  const auto put = [&](const std::shared_ptr<Element>& element, SerieType type, double value) {
    element->getOutputSerie(type, getWindowIndex())->setValue(getDate(), value);
  };
  for (const auto& reservoir :
       ElementsFilter::filterByType(getElements(), ElementSets::reservoir())) {
    if (!reservoir->isEnabled()) continue;
    put(reservoir, SerieType::priority, priorityOf(reservoir));
    put(reservoir, SerieType::targetVolume,
        ReservoirHydrologicalStateCalculator::getTargetVolume(
            reservoir, settingsOf(reservoir), hydrologicalStateCalculator, getInterval(), getDate(),
            getWindowIndex())
            ->getValue(getDate()));
  }
  for (const auto& demand : ElementsFilter::filterByType(getElements(), ElementSets::demands())) {
    if (!demand->isEnabled()) continue;
    put(demand, SerieType::priority, priorityOf(demand));
    put(demand, SerieType::targetDemand,
        ReservoirHydrologicalStateCalculator::getWaterDemand(demand, settingsOf(demand),
                                                             hydrologicalStateCalculator)
            ->getValue(getDate()));
  }
}

void PriorityOperation::eraseSimulationFiles(const Interval& interval) const {
  if (!networkFlow) return;
  for (unsigned int priority : networkFlow->makePriorities(getElements())) {
    PeriodWalker::forEach(interval, [&](const Date& date) {
      std::remove(NetworkFlow::getModelFilename(priority, date).c_str());
      std::remove(NetworkFlow::getModelSolutionFilename(priority, date).c_str());
    });
  }
}
