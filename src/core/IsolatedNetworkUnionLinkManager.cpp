#include "core/IsolatedNetworkUnionLinkManager.h"

#include "core/IsolatedNetworkStreamsManager.h"
#include "core/Node.h"

namespace {

// The links with exactly one end in network, the outer end being the source (in) or the end.
IsolatedNetworkUnionLinkManager::Links crossing(const std::set<unsigned int>& network,
                                                const IsolatedNetworkUnionLinkManager::Links& links,
                                                bool in) {
  IsolatedNetworkUnionLinkManager::Links result;
  for (const auto& link : links) {
    if (!IsolatedNetworkStreamsManager::canAddLink(link)) continue;
    const bool sourceInside = network.count(link->getUpstream()->getId()) != 0;
    const bool endInside = network.count(link->getDownstream()->getId()) != 0;
    if (sourceInside != endInside && endInside == in) result.push_back(link);
  }
  return result;
}

}  // namespace

IsolatedNetworkUnionLinkManager::Links
IsolatedNetworkUnionLinkManager::getIsolatedNetworkEntryPoints(
    const std::set<unsigned int>& network, const Links& links) {
  return crossing(network, links, true);
}

IsolatedNetworkUnionLinkManager::Links IsolatedNetworkUnionLinkManager::getIsolatedNetworkOutPoints(
    const std::set<unsigned int>& network, const Links& links) {
  return crossing(network, links, false);
}
