#pragma once

#include <memory>

#include "core/LinkAddon.h"

// Makes the add-on of a link by its type. Throws std::invalid_argument
// "LinkAddonFactory::make(): invalid linkAddonType" for a type without an add-on class.
class LinkAddonFactory {
 public:
  static std::shared_ptr<LinkAddon> make(LinkAddonType type);
  static std::shared_ptr<LinkAddon> makeLinkAddonNone();
  static std::shared_ptr<LinkAddon> makeLinkAddonPropagation();
  static std::shared_ptr<LinkAddon> makeLinkAddonPumping();
};
