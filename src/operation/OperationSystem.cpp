#include "operation/OperationSystem.h"

#include <algorithm>

#include "common/Calendar.h"
#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "operation/ResultsWriterFactory.h"

OperationSystem::OperationSystem(const SettingsManager& settingsManager, const Elements& elements,
                                 const Interval& interval, bool zeroContribution,
                                 const Enum<ScenarioType>& scenarioType)
    : settingsManager(settingsManager),
      elements(elements),
      interval(interval),
      zeroContribution(zeroContribution),
      scenarioType(scenarioType),
      hasBidirectionalLink(anyBidirectional(elements)) {}

void OperationSystem::runInterval(const Interval& runInterval) {
  setWindowIndex(0);
  Date at = runInterval.getBegin();
  while (at <= runInterval.getEnd()) {
    setDate(at);
    runModel();
    at += Calendar::incInterval(at, runInterval);
  }
}

bool OperationSystem::anyBidirectional(const Elements& elements) {
  const auto links = ElementsFilter::filterByEnabledLinks(elements);
  return std::any_of(links.begin(), links.end(),
                     [](const auto& link) { return link->getIsBidirectional(); });
}

std::vector<std::shared_ptr<Link>> OperationSystem::allocation(const std::shared_ptr<Node>& node) {
  return node->getEnabledDownstreamLinks();
}

void OperationSystem::updateResults(const std::shared_ptr<Element>& element) {
  writerOf(element->getType()).write(date, windowIndex, element, interval, zeroContribution);
}

ResultsWriter& OperationSystem::writerOf(ElementType type) {
  // Writers keep nothing between calls, so one per element kind serves the whole run.
  auto& writer = writers[type];
  if (!writer) writer = ResultsWriterFactory::make({scenarioType.getType(), type});
  return *writer;
}

const OperationSystem::Elements& OperationSystem::levelOrder() {
  std::vector<unsigned int> invertedLinks;
  if (hasBidirectionalLink) {
    for (const auto& element : elements) {
      const auto link = std::dynamic_pointer_cast<Link>(element);
      if (link && link->getCurrentSense() != 0) invertedLinks.push_back(link->getId());
    }
  }
  auto it = nodesInLevelOrder.find(invertedLinks);
  if (it == nodesInLevelOrder.end()) {
    it = nodesInLevelOrder.emplace(invertedLinks, NetworkUtils::levelOrderLegacy(elements)).first;
  }
  return it->second;
}

void OperationSystem::postProcessing(const Callback& callback) {
  const Elements& order = levelOrder();
  const long total = static_cast<long>(order.size());
  long position = 0;
  for (const auto& element : order) {
    ++position;
    if (element->isEnabled()) {
      const auto node = std::static_pointer_cast<Node>(element);
      const std::vector<std::shared_ptr<Link>> links = allocation(node);
      for (const auto& link : links) allocReleaseValue(link, release(link));
      updateResults(node);
      const bool isReservoir = node->getType() == ElementType::reservoir;
      for (const auto& link : links) {
        if (isReservoir && link->getType() == ElementType::naturalLink) {
          allocSpillValue(link, spill(link));
        }
        updateResults(link);
      }
    }
    if (callback && !callback(position, total)) return;
  }
}

void OperationSystem::allocReleaseValue(const std::shared_ptr<Link>& link, double flow) {
  link->getOutputSerie(SerieType::inflow, windowIndex)->setValue(date, flow);
}

void OperationSystem::allocSpillValue(const std::shared_ptr<Link>& link, double flow) {
  const std::shared_ptr<Serie>& inflow = link->getOutputSerie(SerieType::inflow, windowIndex);
  inflow->setValue(date, inflow->getValue(date) + flow);
}

bool OperationSystem::hasLoop() {
  idsOfElementsInLoop = NetworkUtils::findLoop(elements);
  return !idsOfElementsInLoop.empty();
}
