#pragma once

#include <memory>
#include <set>
#include <vector>

#include "core/Link.h"

// The links that cross the border of an isolated network, given the ids of its nodes: those that
// bring water in (their source outside) and those that take it out (their end outside). Only
// links that carry water count (IsolatedNetworkStreamsManager::canAddLink).
class IsolatedNetworkUnionLinkManager {
 public:
  using Links = std::vector<std::shared_ptr<Link>>;

  static Links getIsolatedNetworkEntryPoints(const std::set<unsigned int>& network,
                                             const Links& links);
  static Links getIsolatedNetworkOutPoints(const std::set<unsigned int>& network,
                                           const Links& links);
};
