#pragma once

#include <nlohmann/json.hpp>
#include <string>

// Names a value of a parsed project file for a message: its JSON pointer from the root, with the
// names of the scenario and the element that hold it, as a user finds them in the file, e.g.
// /scenarios/0/nodes/3/node/element/scenarioConf (scenario "Base", element "J1").
class JsonLoadPlace {
 public:
  // The place of target inside root; "the file" when target is root or not inside it. Names are
  // cut to a length a message can hold.
  static std::string of(const nlohmann::json& root, const nlohmann::json* target);
  // name cut to a length a message can hold, with "..." where it was cut.
  static std::string shortName(const std::string& name);
};
