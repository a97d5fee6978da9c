#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonSaveReleaseRule.h"

// Chooses the writer of a release rule by the name of its type ("Liberação constante").
class JsonSaveReleaseRuleFactory {
 public:
  // The writer of rule. Throws std::invalid_argument
  // "JsonSaveReleaseRuleFactory::make(): invalid ReleaseRuleType" for a type without a writer.
  static std::shared_ptr<JsonSaveReleaseRule> make(const std::shared_ptr<ReleaseRule>& rule);
  // The names of the types that have a writer.
  static std::vector<std::string> keys();
};
