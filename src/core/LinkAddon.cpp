#include "core/LinkAddon.h"

#include "vocabulary/Vocabulary.h"

LinkAddon::LinkAddon() : LinkAddon(LinkAddonType::none) {}

LinkAddon::LinkAddon(LinkAddonType type) : type(Vocabulary::of(type)) {}

std::shared_ptr<LinkAddon> LinkAddon::copy() const { return std::make_shared<LinkAddon>(*this); }
