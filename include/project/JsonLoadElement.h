#pragma once

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>

#include "core/Element.h"

class Scenario;

// Reads an element's item into a new element and adds it to the scenario. Every item holds the
// element object, read in this order: the id, under which the element joins the scenario, then
// databaseId, name, enable, the caller's extra information and the settings ("scenarioConf"). Each
// kind of element derives a reader for the rest of its item.
class JsonLoadElement {
 public:
  // What the library's caller reads from the object of the element with this id.
  using ExtraInfo = std::function<void(const nlohmann::json& element, unsigned int elementId,
                                       const std::shared_ptr<Scenario>&)>;

  // A reader into element, a new element that joins scenario as it is read.
  JsonLoadElement(std::shared_ptr<Element> element, std::shared_ptr<Scenario> scenario);
  virtual ~JsonLoadElement() = default;

  // Reads item. Throws JsonLoadException for a missing required key or an id the scenario already
  // holds, nlohmann::json::type_error for a value of the wrong type, std::invalid_argument from the
  // reader factories for a kind without a reader, and the model's exceptions for values it
  // refuses.
  virtual void load(const nlohmann::json& item) = 0;
  // The element read into.
  const std::shared_ptr<Element>& getElement() const { return element; }

  // Sets the function called with every element object read from now on, after its enable flag;
  // an empty function is not called.
  static void setLambdaExtraInfoElement(ExtraInfo hook);

 protected:
  // Reads the element object and adds the element to the scenario.
  void loadElement(const nlohmann::json& object);
  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }

 private:
  static ExtraInfo& extraInfo();

  std::shared_ptr<Element> element;
  std::shared_ptr<Scenario> scenario;
};
