#pragma once

#include <cstdint>
#include <string>
#include <utility>

// A typed vocabulary value: the plain enumeration value and its display name. The display
// names are Portuguese and are shown to users and stored in project files. Two values are equal
// only when both the plain value and the name agree; maps are keyed by the plain value.
template <typename T>
class Enum {
 public:
  Enum() : type(T{}) {}
  Enum(T type, std::string name) : type(type), name(std::move(name)) {}

  T getType() const { return type; }
  const std::string& getName() const { return name; }
  int32_t getId() const { return static_cast<int32_t>(type); }

  bool operator==(const Enum& other) const { return type == other.type && name == other.name; }
  bool operator!=(const Enum& other) const { return !(*this == other); }

 private:
  T type;
  std::string name;
};
