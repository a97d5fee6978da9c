#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "core/Scenario.h"

// Reads a project file: its scenarios, in the order of the file, and its configuration. All is
// read into new objects first; only a file read to its end changes the process: the configuration
// goes to ConfigurationHeader, each scenario's use of the obsolete link limit is recorded there,
// and the ScenarioManager's next scenario id becomes one above the largest read (1 without
// scenarios). The scenarios themselves are returned, not installed.
class JsonProjectLoader {
 public:
  // The scenarios of the file at path (UTF-8). Throws std::runtime_error
  // "JsonLoadBuilder:load() error in open JSON file" when it cannot be opened,
  // JsonLoadException "not a JSON text: ..." for text that is not JSON (an empty file included),
  // and as loadJson().
  static std::vector<std::shared_ptr<Scenario>> load(const std::string& path);
  // The scenarios of the project text. Throws as load() from the parsing on.
  static std::vector<std::shared_ptr<Scenario>> loadText(const std::string& text);
  // The scenarios of a parsed project. Every failure is one JsonLoadException line that names the
  // place first and then what is wrong there: a missing required key, a value of the wrong type,
  // a kind without a reader (the factories' texts, such as "JsonLoadScenarioFactory::make():
  // invalid scenarioType") or a value the model refuses (its own text), e.g.
  // "/scenarios/0/id (scenario \"Base\"): expected a whole number, found the text \"7\"".
  static std::vector<std::shared_ptr<Scenario>> loadJson(const nlohmann::json& root);

 private:
  static std::vector<std::shared_ptr<Scenario>> read(const nlohmann::json& root);
};
