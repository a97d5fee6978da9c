#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "project/JsonLoadReleaseRule.h"

// Reads a rule by the volume of one other reservoir, static or periodic alike: "Reservoir" (an id,
// resolved once the scenario is read; null or absent for none) and the rows of "VolDepOneVector".
class JsonLoadVolDepOneReleaseRule : public JsonLoadReleaseRule {
 public:
  using JsonLoadReleaseRule::JsonLoadReleaseRule;
  void load(const nlohmann::json& object) const override;

  // The dependency id of member key of object. For a null or absent member it is an id that no
  // element holds, so that resolving leaves the rule without a dependency, whereas id 0 would name
  // the scenario's first element. Throws nlohmann::json::type_error for a value that is no integer.
  static unsigned int dependencyId(const nlohmann::json& object, const std::string& key);
};
