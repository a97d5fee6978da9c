#pragma once

#include <string>
#include <utility>

#include "vocabulary/EnumTypes.h"

// An element type with the one-letter family code shown in diagrams: R, D, J, B or L.
class EnumElementType {
 public:
  EnumElementType() : type(ElementType::genericDemand), letter('D') {}
  EnumElementType(ElementType type, std::string name, char letter)
      : type(type), name(std::move(name)), letter(letter) {}

  ElementType getType() const { return type; }
  const std::string& getName() const { return name; }
  char getLetter() const { return letter; }
  int32_t getId() const { return static_cast<int32_t>(type); }

  bool operator==(const EnumElementType& other) const {
    return type == other.type && name == other.name;
  }
  bool operator!=(const EnumElementType& other) const { return !(*this == other); }

 private:
  ElementType type;
  std::string name;
  char letter;
};
