#pragma once

#include <memory>
#include <string>

#include "core/Element.h"
#include "core/Scenario.h"

// Writes the settings object of an element in a scenario ("scenarioConf"). Each pair of scenario
// kind and element kind has its writer (JsonSaveSettingsFactory).
class JsonSaveSettings {
 public:
  // A writer of the settings that scenario holds for element.
  JsonSaveSettings(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);
  virtual ~JsonSaveSettings() = default;

  // The settings object. Throws std::invalid_argument
  // "Passed element is not valid for element setting" when the scenario holds settings of
  // another class for the element.
  virtual std::string toJson() const = 0;

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

// Writes a link's settings in a rule scenario: {"bidirectionalAllocation":[...]}, the flows it
// takes at each line of its reservoir's matrix while it runs inverted (m³/s).
class JsonSaveSettingsRuleLink : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  std::string toJson() const override;
};

// Writes the settings of a junction, basin or link in a priority scenario: {}, as such elements
// take no part in the priorities.
class JsonSaveSettingsPriorityPassive : public JsonSaveSettings {
 public:
  using JsonSaveSettings::JsonSaveSettings;
  std::string toJson() const override;
};
