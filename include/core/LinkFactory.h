#pragma once

#include <memory>
#include <string>

#include "core/Link.h"
#include "core/LinkAddonFactory.h"
#include "core/Node.h"
#include "vocabulary/EnumLinkAddonType.h"

// Makes a link of class T (NaturalLink or ArtificialLink) from upstream to downstream with the
// add-on of the given type, and registers it with both nodes.
template <typename T>
class LinkFactory {
 public:
  static std::shared_ptr<T> make(const std::shared_ptr<Node>& upstream,
                                 const std::shared_ptr<Node>& downstream, const std::string& name,
                                 const EnumLinkAddonType& addonType) {
    auto link = std::make_shared<T>();
    link->setName(name);
    link->setLinkAddon(LinkAddonFactory::make(addonType.getType()));
    link->setUpstream(upstream);
    link->setDownstream(downstream);
    upstream->addDownstream(link);
    downstream->addUpstream(link);
    return link;
  }
};
