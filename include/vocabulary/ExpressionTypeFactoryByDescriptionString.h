#pragma once

#include <string>

#include "vocabulary/EnumExpressionTypeFactory.h"

// The node types of a formula by the text project files store. A node of one of the three
// families (statistics on one element, one child per element, one child over every element) is
// stored as "<display name>-<parameter kind>", since a statistic has the same display name in two
// families; any other node by its display name alone.
class ExpressionTypeFactoryByDescriptionString {
 public:
  // Throws std::invalid_argument "ExpressionTypeFactoryByDescriptionString::make(): invalid
  // descriptionType" for a text that names no node type.
  static const Enum<ExpressionType>& make(const std::string& description);
  // The text under which make() finds type.
  static std::string descriptionOf(ExpressionType type);
};
