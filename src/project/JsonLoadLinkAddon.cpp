#include "project/JsonLoadLinkAddon.h"

#include "core/LinkAddonFactory.h"

JsonLoadLinkAddon::JsonLoadLinkAddon(LinkAddonType type, std::shared_ptr<Link> link)
    : type(type), link(std::move(link)) {}

void JsonLoadLinkAddon::load(const nlohmann::json& object) const {
  std::shared_ptr<LinkAddon> addon = LinkAddonFactory::make(type);
  loadSpecific(object, *addon);
  link->setLinkAddon(addon);
}

void JsonLoadLinkAddon::loadSpecific(const nlohmann::json&, LinkAddon&) const {}
