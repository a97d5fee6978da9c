#include "operation/RuleOperation.h"

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/NetworkUtils.h"
#include "core/ReservoirRuleSettings.h"
#include "operation/BidirectionalLinkManager.h"
#include "operation/RuleReleaseAllocationFactory.h"

double RuleOperation::release(const std::shared_ptr<Link>& link) {
  return releaseWith(link, nullptr);
}

double RuleOperation::releaseWith(const std::shared_ptr<Link>& link,
                                  const SceneryIsolatedData* isolatedData) {
  const std::shared_ptr<Node> upstream = link->getUpstream();
  return allocatorOf(upstream->getType())
      .getValue(upstream, link, getSettingsManager(), getZeroContribution(), isolatedData);
}

RuleReleaseDefaultAllocation& RuleOperation::allocatorOf(ElementType type) {
  // An allocator keeps only the step it serves, so one per node kind serves the whole run.
  auto& allocator = allocators[type];
  if (!allocator) {
    allocator = RuleReleaseAllocationFactory::make(type, getInterval(), getDate(), getWindowIndex());
  } else {
    allocator->setStep(getInterval(), getDate(), getWindowIndex());
  }
  return *allocator;
}

double RuleOperation::spill(const std::shared_ptr<Link>& link) {
  return link->getUpstream()
      ->getOutputSerie(SerieType::spilledFlow, getWindowIndex())
      ->getValue(getDate());
}

void RuleOperation::postProcessing(const Callback& callback) {
  writeRuleSeries();
  OperationSystem::postProcessing(callback);
}

void RuleOperation::runModel() {
  configureRuleReservoirs();
  if (!getHasBidirectionalLink()) {
    postProcessing(nullptr);
    return;
  }
  const std::vector<std::shared_ptr<Link>> links = ElementsFilter::filterByLinks(getElements());
  BidirectionalLinkManager::configureInversionOnLinks(links, getInterval(), getDate(),
                                                      getWindowIndex());
  const auto restore = [&] {
    BidirectionalLinkManager::restoreInversionOnLinks(links);
    BidirectionalLinkManager::restoreInversionOnReservoirs(getElements());
  };
  if (hasLoop()) {
    restore();
    throw NetworkUtils::LoopException();
  }
  try {
    postProcessing(nullptr);
  } catch (...) {
    restore();
    throw;
  }
  restore();
}

void RuleOperation::configureRuleReservoirs() {
  for (const auto& reservoir : ElementsFilter::filterByType(getElements(), ElementSets::reservoir())) {
    auto settings = std::static_pointer_cast<ReservoirRuleSettings>(
        getSettingsManager().getSettings(reservoir->getId()));
    if (!settings->getRule()) continue;
    settings->getRule()->setInterval(getInterval());
    settings->getRule()->setWindowIndex(getWindowIndex());
  }
}

void RuleOperation::writeRuleSeries() {
  for (const auto& demand : ElementsFilter::filterByType(getElements(), ElementSets::demands())) {
    if (!demand->isEnabled()) continue;
    const double target = demand->getInputSerie(SerieType::demand)->getValue(getDate());
    demand->getOutputSerie(SerieType::targetDemand, getWindowIndex())->setValue(getDate(), target);
  }
}
