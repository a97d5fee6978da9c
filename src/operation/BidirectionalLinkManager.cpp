#include "operation/BidirectionalLinkManager.h"

#include <stdexcept>

#include "core/Reservoir.h"
#include "operation/SenseInfoManager.h"

void BidirectionalLinkManager::configureInversionOnLinks(
    const std::vector<std::shared_ptr<Link>>& links, const Interval& interval, const Date& date,
    unsigned int windowIndex) {
  for (const auto& link : links) {
    if (!link->getIsBidirectional()) continue;
    const int sense =
        SenseInfoManager::getSenseAccordingToReservoirsVolume(link, interval, date, windowIndex);
    auto upstream = std::dynamic_pointer_cast<Reservoir>(link->getUpstream());
    auto downstream = std::dynamic_pointer_cast<Reservoir>(link->getDownstream());
    if (!upstream || !downstream) {
      throw std::invalid_argument(
          "BidirectionalLink::configureInversionOnLink: invalid birectional link");
    }
    if (sense == 0) continue;
    link->invert();
    upstream->invertLink(link);
    downstream->invertLink(link);
  }
}

void BidirectionalLinkManager::restoreInversionOnLinks(
    const std::vector<std::shared_ptr<Link>>& links) {
  for (const auto& link : links) {
    if (link->getCurrentSense() != 0) link->invert();
  }
}

void BidirectionalLinkManager::restoreInversionOnReservoirs(
    const std::vector<std::shared_ptr<Element>>& elements) {
  for (const auto& element : elements) {
    if (auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
      reservoir->restoreInversionLink();
    }
  }
}
