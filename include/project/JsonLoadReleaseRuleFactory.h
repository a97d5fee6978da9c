#pragma once

#include <memory>
#include <string>
#include <vector>

#include "project/JsonLoadReleaseRule.h"

// Chooses the reader of a release rule by the name of its type ("Liberação constante").
class JsonLoadReleaseRuleFactory {
 public:
  // The reader of rule, of type, in scenario. Throws std::invalid_argument
  // "JsonLoadReleaseRuleFactory::make(): invalid ReleaseRuleType" for a name without a reader.
  static std::shared_ptr<JsonLoadReleaseRule> make(const std::string& type,
                                                   const std::shared_ptr<ReleaseRule>& rule,
                                                   const std::shared_ptr<Scenario>& scenario);
  // The names of the types that have a reader.
  static std::vector<std::string> keys();
};
