#pragma once

#include <string>
#include <vector>

#include "service/EnumTlvType.h"

// The table of frame kinds: by the number on the wire and by description.
class EnumTlvTypeFactoryByIntegerType {
 public:
  // The kind numbered tlvTypeAsInteger. Throws std::invalid_argument
  // "Error: invalid tlvTypeAsInteger." for a number outside the table.
  static EnumTlvType make(int tlvTypeAsInteger);
  // The kind described by description. Throws std::invalid_argument
  // "EnumTlvTypeFactoryByIntegerType::findByDescription(): invalid description".
  static EnumTlvType findByDescription(const std::string& description);
  // Every kind, by number.
  static std::vector<EnumTlvType> keys();
};
