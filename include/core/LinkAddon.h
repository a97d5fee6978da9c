#pragma once

#include <memory>

#include "vocabulary/EnumLinkAddonType.h"

// What a link carries beyond the plain transport of water. The base class is itself the add-on
// "Nenhum", which adds nothing.
class LinkAddon {
 public:
  LinkAddon();
  virtual ~LinkAddon() = default;

  LinkAddonType getType() const { return type.getType(); }
  const EnumLinkAddonType& getEnumType() const { return type; }

  virtual std::shared_ptr<LinkAddon> copy() const;

 protected:
  explicit LinkAddon(LinkAddonType type);

 private:
  EnumLinkAddonType type;
};
