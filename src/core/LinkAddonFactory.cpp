#include "core/LinkAddonFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

std::shared_ptr<LinkAddon> LinkAddonFactory::make(LinkAddonType type) {
  static const std::map<LinkAddonType, std::function<std::shared_ptr<LinkAddon>()>> makers = {
      {LinkAddonType::none, makeLinkAddonNone},
  };
  auto it = makers.find(type);
  if (it == makers.end()) {
    throw std::invalid_argument("LinkAddonFactory::make(): invalid linkAddonType");
  }
  return it->second();
}

std::shared_ptr<LinkAddon> LinkAddonFactory::makeLinkAddonNone() {
  return std::make_shared<LinkAddon>();
}
