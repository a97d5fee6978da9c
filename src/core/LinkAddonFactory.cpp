#include "core/LinkAddonFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/LinkAddonPumping.h"

std::shared_ptr<LinkAddon> LinkAddonFactory::make(LinkAddonType type) {
  static const std::map<LinkAddonType, std::function<std::shared_ptr<LinkAddon>()>> makers = {
      {LinkAddonType::none, makeLinkAddonNone},
      {LinkAddonType::propagation, makeLinkAddonPropagation},
      {LinkAddonType::pumping, makeLinkAddonPumping},
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

std::shared_ptr<LinkAddon> LinkAddonFactory::makeLinkAddonPropagation() {
  return std::make_shared<LinkAddonPropagation>();
}

std::shared_ptr<LinkAddon> LinkAddonFactory::makeLinkAddonPumping() {
  return std::make_shared<LinkAddonPumping>();
}
