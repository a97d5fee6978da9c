#include "core/IsolatedNetworkUtils.h"

#include <stdexcept>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/IsolatedNetworkStreamsManager.h"
#include "core/IsolatedNetworkUnionLinkManager.h"
#include "core/NetworkUtils.h"
#include "core/Reservoir.h"

bool IsolatedNetworkUtils::isIsolatedElement(const std::shared_ptr<Element>& node) {
  return IsolatedNetworkStreamsManager::isIsolatedReservoir(node);
}

std::vector<std::shared_ptr<Element>>
IsolatedNetworkUtils::getStackOfReservoirsWithIsolatedFlagTrue(const Scenario& scenario) {
  std::vector<std::shared_ptr<Element>> result;
  for (const auto& node : NetworkUtils::levelOrderLegacy(scenario.getElements())) {
    if (isIsolatedElement(node)) result.push_back(node);
  }
  return result;
}

void IsolatedNetworkUtils::setReservoirIsolated(Scenario& scenario,
                                                const std::shared_ptr<Element>& reservoir,
                                                bool flag) {
  const auto own = std::dynamic_pointer_cast<Reservoir>(
      ElementsFilter::getElement(scenario.getElements(), reservoir->getId()));
  if (!own || own != reservoir) {
    throw std::invalid_argument(
        "IsolatedNetworkUtils::setReservoirIsolated(): the element is not a reservoir of the "
        "scenario");
  }
  own->getReservoirInfo().isolated = flag;
  markUnionLinks(scenario);
}

void IsolatedNetworkUtils::markUnionLinks(Scenario& scenario) {
  const auto links = ElementsFilter::filterByLinks(scenario.getElements());
  for (const auto& link : links) link->setIsUnion(false);
  scenario.clearUnionLinks();
  const auto split = IsolatedNetworkStreamsManager::splitNetwork(scenario.getElements());
  for (const auto& network : split) {
    for (const auto& link :
         IsolatedNetworkUnionLinkManager::getIsolatedNetworkOutPoints(network, links)) {
      link->setIsUnion(true);
      scenario.addUnionLink(link);
    }
  }
}
