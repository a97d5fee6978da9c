#pragma once

#include <string>
#include <utility>

#include "vocabulary/EnumTypes.h"

// The kind of add-on that a link carries: "Nenhum", "Propagação" or "Bombeamento".
class EnumLinkAddonType {
 public:
  EnumLinkAddonType() : type(LinkAddonType::none) {}
  EnumLinkAddonType(LinkAddonType type, std::string name) : type(type), name(std::move(name)) {}

  LinkAddonType getType() const { return type; }
  const std::string& getName() const { return name; }

  bool operator==(const EnumLinkAddonType& other) const {
    return type == other.type && name == other.name;
  }
  bool operator!=(const EnumLinkAddonType& other) const { return !(*this == other); }

 private:
  LinkAddonType type;
  std::string name;
};
