#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "core/Element.h"
#include "core/Scenario.h"

// Reads the settings object of an element ("scenarioConf") into the settings that the scenario
// made for it. Each pair of scenario kind and element kind has its reader
// (JsonLoadSettingsFactory).
class JsonLoadSettings {
 public:
  // A reader into the settings that scenario holds for element.
  JsonLoadSettings(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);
  virtual ~JsonLoadSettings() = default;

  // Reads object. Throws JsonLoadException for a missing required key,
  // nlohmann::json::type_error for a value of the wrong type, and std::invalid_argument
  // "Passed element is not valid for element setting" when the scenario holds settings of another
  // class for the element.
  virtual void load(const nlohmann::json& object) const = 0;

 protected:
  // The element's settings as T.
  template <typename T>
  std::shared_ptr<T> getSettings() const {
    return Scenario::getSettings<T>(element, scenario->getSettingsManager());
  }
  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }

 private:
  std::shared_ptr<Element> element;
  std::shared_ptr<Scenario> scenario;
};

// Reads a link's settings in a rule scenario: the optional "bidirectionalAllocation" (m³/s).
class JsonLoadSettingsRuleLink : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  void load(const nlohmann::json& object) const override;
};

// Reads the settings of a junction, basin or link in a priority scenario: the object has no keys,
// as such elements take no part in the priorities.
class JsonLoadSettingsPriorityPassive : public JsonLoadSettings {
 public:
  using JsonLoadSettings::JsonLoadSettings;
  void load(const nlohmann::json& object) const override;
};
