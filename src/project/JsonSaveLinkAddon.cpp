#include "project/JsonSaveLinkAddon.h"

using B = JsonSaveBuilder;

JsonSaveLinkAddon::JsonSaveLinkAddon(std::shared_ptr<LinkAddon> addon) : addon(std::move(addon)) {}

std::string JsonSaveLinkAddon::toJson() const {
  B::Members members = {B::makeJsonKeyValueString("linkAddonType", addon->getEnumType().getName())};
  const B::Members specific = toJsonSpecific();
  members.insert(members.end(), specific.begin(), specific.end());
  return B::makeObject(members);
}

JsonSaveBuilder::Members JsonSaveLinkAddon::toJsonSpecific() const { return {}; }
