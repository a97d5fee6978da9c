#include "core/Scenario.h"

#include <algorithm>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ExecutionMethod.h"
#include "core/IntervalWindowed.h"
#include "core/Junction.h"
#include "core/Link.h"
#include "core/NetworkUtils.h"
#include "core/Node.h"
#include "core/ReleaseRule.h"
#include "core/Reservoir.h"
#include "core/ReservoirRuleSettings.h"
#include "vocabulary/Vocabulary.h"

Scenario::Scenario(const std::shared_ptr<ExecutionMethod>& executionMethod, unsigned int id,
                   const Interval& interval, const std::string& name)
    : interval(interval),
      id(id),
      name(name),
      executionMethod(executionMethod),
      pumpingCosts(ElementSets::consumerDemands().size(), 0.0),
      sceneryStatus(Vocabulary::of(SceneryStatus::configurationError)) {}

void Scenario::addElement(const std::shared_ptr<Element>& element, bool rename) {
  insertElement(element, rename, maxElementId);
}

void Scenario::addElement(const std::shared_ptr<Element>& element, bool rename, unsigned int id) {
  insertElement(element, rename, id);
}

void Scenario::insertElement(const std::shared_ptr<Element>& element, bool rename,
                             unsigned int elementId) {
  element->setId(elementId);
  usedElementIds[elementId] = true;
  maxElementId = std::max(maxElementId, elementId + 1);
  if (rename) element->setName(element->getElementType().getName() + std::to_string(elementId));
  elements.push_back(element);
  settingsManager.make(elementId, getScenarioType(), element->getElementType());
  element->setIntervalSeries(interval);
}

void Scenario::removeElement(unsigned int elementId) {
  auto it = std::find_if(elements.begin(), elements.end(),
                         [elementId](const auto& e) { return e->getId() == elementId; });
  if (it == elements.end()) {
    throw std::invalid_argument("Scenario::removeElement(): invalid elementId");
  }
  if (auto link = std::dynamic_pointer_cast<Link>(*it)) {
    if (auto upstream = link->getUpstream()) upstream->removeDownstream(link);
    if (auto downstream = link->getDownstream()) downstream->removeUpstream(link);
  }
  settingsManager.destroy(elementId);
  elements.erase(it);
}

void Scenario::posAddElement(const std::shared_ptr<Element>&, bool) {}

void Scenario::addElements(const Elements& newElements, bool rename) {
  for (const auto& element : newElements) addElement(element, rename);
}

void Scenario::addElementsKeepingIDs(const Elements& newElements, bool rename) {
  for (const auto& element : newElements) addElement(element, rename, element->getId());
}

bool Scenario::run(const Progress& progress) {
  preRun();
  if (executeSceneryCheck() == 2) {
    setSceneryStatus(SceneryStatus::configurationError);
    return false;
  }
  ExecutionMethod::configureLinkAddonPumping(ElementsFilter::filterByEnabledLinks(elements));
  clearResultSeries();
  createResults();
  currentOperationSystem = getOperationSystem();
  bool finished = false;
  try {
    finished = executionMethod->run(interval, currentOperationSystem, progress);
  } catch (const NetworkUtils::LoopException&) {
    setSceneryStatus(SceneryStatus::bidirectionalLoop);
    clearAllResults();
    return false;
  }
  if (!finished) {
    setSceneryStatus(SceneryStatus::cancelled);
    clearAllResults();
    return false;
  }
  setSceneryStatus(SceneryStatus::success);
  return true;
}

bool Scenario::runIsolated(const Progress&) {
  setSceneryStatus(
      Enum<SceneryStatus>(SceneryStatus::configurationError,
                          "Este tipo de cenário não pode ser executado no modo rede isolada!"));
  return false;
}

std::shared_ptr<OperationSystem> Scenario::getIsolatedOperationSystem(unsigned int) {
  throw std::logic_error(
      "Scenario::getIsolatedOperationSystem(): this kind of scenario has no isolated run");
}

void Scenario::copyResultsFromIsolatedScenery(const std::shared_ptr<Scenario>& piece) {
  for (const auto& element : piece->getElements()) {
    const auto junction = std::dynamic_pointer_cast<Junction>(element);
    if (junction && junction->getIsUnion()) continue;
    if (auto own = ElementsFilter::getElement(elements, element->getId())) {
      own->copyResultsSeriesFrom(element);
    }
  }
}

void Scenario::cleanIsolatedConfigurations() {
  for (const auto& reservoir : ElementsFilter::filterByType(elements, ElementSets::reservoir())) {
    std::static_pointer_cast<Reservoir>(reservoir)->getReservoirInfo().isolated = false;
  }
  for (const auto& link : ElementsFilter::filterByLinks(elements)) link->setIsUnion(false);
  clearUnionLinks();
}

void Scenario::preRun() {
  clearUnionLinks();
  ExecutionMethod::configureDrainDemands(
      ElementsFilter::filterByType(elements, {ElementType::drain}), interval);
  const Elements reservoirs = ElementsFilter::filterByType(elements, ElementSets::reservoir());
  ExecutionMethod::configureReservoirsCav(reservoirs);
  configureZeroContribution(reservoirs);
  ExecutionMethod::backupReservoirsLinks(reservoirs);
}

void Scenario::configureZeroContribution(const Elements& reservoirs) {
  executionMethod->configureZeroContribution(settingsManager, reservoirs);
}

void Scenario::createResults() {
  executionMethod->createResults(elements, interval, getScenarioType());
}

void Scenario::clearResultSeries() {
  for (const auto& element : elements) element->clearOutputSeries();
}

void Scenario::clearAllResults() { clearResultSeries(); }

int Scenario::executeSceneryCheck() {
  if (!sceneryCheck) sceneryCheck = makeSceneryCheck();
  if (!sceneryCheck) return 1;
  return passesSceneryCheck(*sceneryCheck) ? 0 : 2;
}

bool Scenario::passesSceneryCheck(SceneryCheck&) {
  throw std::logic_error("Scenario::passesSceneryCheck(): this kind of scenario has no check");
}

std::shared_ptr<Scenario> Scenario::copy() const {
  std::shared_ptr<Scenario> result = copySpecific();
  copyNetworkInto(*result);
  result->resolveRuleReferences();
  return result;
}

// Copied rules know the elements they depend on by id only; they find them in this scenario.
void Scenario::resolveRuleReferences() {
  for (const auto& reservoir : ElementsFilter::filterByType(elements, ElementSets::reservoir())) {
    auto settings =
        std::dynamic_pointer_cast<ReservoirRuleSettings>(settingsManager.getSettings(reservoir->getId()));
    if (settings && settings->getRule()) {
      settings->getRule()->loadAfterScenarioInstantiated(shared_from_this());
    }
  }
}

// Copies every element, then rebuilds the links between the copies in their original order.
// Node::addDownstream is called directly so that a demand's copied return shares are kept.
void Scenario::copyNetworkInto(Scenario& target) const {
  std::map<unsigned int, std::shared_ptr<Element>> copies;
  for (const auto& element : elements) copies[element->getId()] = element->copy();
  for (const auto& element : elements) {
    const std::shared_ptr<Element>& copy = copies.at(element->getId());
    if (auto link = std::dynamic_pointer_cast<Link>(element)) {
      auto linkCopy = std::static_pointer_cast<Link>(copy);
      linkCopy->setUpstream(std::static_pointer_cast<Node>(copies.at(link->getUpstream()->getId())));
      linkCopy->setDownstream(
          std::static_pointer_cast<Node>(copies.at(link->getDownstream()->getId())));
    } else {
      auto node = std::static_pointer_cast<Node>(element);
      auto nodeCopy = std::static_pointer_cast<Node>(copy);
      for (const auto& link : node->getUpstreamLinks()) {
        nodeCopy->addUpstream(std::static_pointer_cast<Link>(copies.at(link->getId())));
      }
      for (const auto& link : node->getDownstreamLinks()) {
        nodeCopy->Node::addDownstream(std::static_pointer_cast<Link>(copies.at(link->getId())));
      }
    }
    target.elements.push_back(copy);
  }
  target.usedElementIds = usedElementIds;
  target.maxElementId = maxElementId;
  target.databaseId = databaseId;
  target.settingsManager = settingsManager;
  target.sceneryCheck = nullptr;
  target.labelElementsSelects = labelElementsSelects;
  target.pumpingCosts = pumpingCosts;
  target.vectorOfPathInfo = vectorOfPathInfo;
  target.epsgCode = epsgCode;
  target.sceneryStatus = sceneryStatus;
}

void Scenario::remakeSettings() {
  settingsManager = SettingsManager();
  for (const auto& element : elements) {
    settingsManager.make(element->getId(), getScenarioType(), element->getElementType());
  }
  for (const bool links : {false, true}) {
    for (const auto& element : elements) {
      if (ElementSets::links().count(element->getType()) == (links ? 1u : 0u)) {
        posAddElement(element, false);
      }
    }
  }
}

const std::shared_ptr<Element>& Scenario::getElement(unsigned int elementId) const {
  auto it = std::find_if(elements.begin(), elements.end(),
                         [elementId](const auto& e) { return e->getId() == elementId; });
  if (it == elements.end()) throw std::invalid_argument("Scenario::getElement(): invalid elementId");
  return *it;
}

std::shared_ptr<Element> Scenario::getElement(const std::string& elementName) const {
  auto it = std::find_if(elements.begin(), elements.end(),
                         [&elementName](const auto& e) { return e->getName() == elementName; });
  return it == elements.end() ? nullptr : *it;
}

Scenario::Elements Scenario::getSortedElements() const {
  Elements sorted = elements;
  std::sort(sorted.begin(), sorted.end(),
            [](const auto& a, const auto& b) { return a->getId() < b->getId(); });
  return sorted;
}

void Scenario::setInterval(const Interval& value) {
  interval = value;
  clearAllResults();
  setSeriesIntervalsElements();
}

void Scenario::setExecutionMethod(const std::shared_ptr<ExecutionMethod>& method) {
  executionMethod = method;
}

std::vector<Interval> Scenario::calcVectorOfIntervals() const {
  return IntervalWindowed::makeIntervals(interval, executionMethod->getYearsDate(),
                                         executionMethod->getWindowSize(),
                                         executionMethod->getExecutionType().getType());
}

bool Scenario::hasResults() const {
  return std::all_of(elements.begin(), elements.end(),
                     [](const auto& e) { return !e->isEnabled() || e->hasResults(); });
}

bool Scenario::hasBidirectionalLink() const {
  const auto links = ElementsFilter::filterByEnabledLinks(elements);
  return std::any_of(links.begin(), links.end(),
                     [](const auto& link) { return link->getIsBidirectional(); });
}

bool Scenario::hasLoop() {
  idsOfElementsInLoop = NetworkUtils::findLoop(elements);
  return !idsOfElementsInLoop.empty();
}

std::vector<std::shared_ptr<Element>> Scenario::getVectorOfLinksWithBurst() const {
  std::vector<std::shared_ptr<Element>> result;
  for (const auto& link : ElementsFilter::filterByEnabledLinks(elements)) {
    if (link->hasResults() && link->linkBurst(0)) result.push_back(link);
  }
  return result;
}

void Scenario::setSeriesIntervalsElements() {
  for (const auto& element : elements) element->setIntervalSeries(interval);
}

void Scenario::setSceneryStatus(SceneryStatus status) { sceneryStatus = Vocabulary::of(status); }
