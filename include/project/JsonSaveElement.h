#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/Element.h"

class Scenario;

// Writes an element of a scenario. toJson() gives the element's item in the scenario's "nodes" or
// "links" array, which each kind of element shapes; every item holds the element object:
// {"name":..,"id":..,"databaseId":..,"enable":..,"elementType":..,<extra>,"scenarioConf":{...}}.
class JsonSaveElement {
 public:
  // The text that the library's caller adds to the object of the element with this id.
  using ExtraInfo =
      std::function<std::string(unsigned int elementId, const std::shared_ptr<Scenario>&)>;

  // A writer of element, whose settings are those of scenario.
  JsonSaveElement(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);
  virtual ~JsonSaveElement() = default;

  // The element's item. Throws as toJsonElement().
  virtual std::string toJson() const = 0;
  // The element object. Throws as toJsonScenarioConf().
  std::string toJsonElement() const;
  // The element's settings in the scenario. Throws std::runtime_error
  // "JsonSaveElement: scenario pointer is nullptr!" without a scenario, and std::invalid_argument
  // from the writer factories for settings or a rule without a writer.
  std::string toJsonScenarioConf() const;

  // Sets the function whose text (with a comma behind it) goes between the type and the settings
  // of every element object written from now on; an empty function adds nothing.
  static void setLambdaExtraInfoElement(ExtraInfo hook);

 protected:
  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }

 private:
  static ExtraInfo& extraInfo();

  std::shared_ptr<Element> element;
  std::shared_ptr<Scenario> scenario;
};
