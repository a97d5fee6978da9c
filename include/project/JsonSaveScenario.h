#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"
#include "project/JsonSaveBuilder.h"

// Writes a scenario object with its keys in the order of the file format: interval, name, type,
// execution method type and object, ids, nodes, links, shapes, the keys of the scenario's kind,
// and the saved selections. Each kind of scenario derives a writer that adds its keys.
class JsonSaveScenario {
 public:
  explicit JsonSaveScenario(std::shared_ptr<Scenario> scenario);
  virtual ~JsonSaveScenario() = default;

  // The scenario object; an empty text without a scenario. Throws std::invalid_argument from the
  // writer factories for an element, settings, rule, add-on or method without a writer.
  std::string toJson() const;
  // "key":[...] with the item of each element, in their order.
  std::string toJsonElements(const std::string& key,
                             const std::vector<std::shared_ptr<Element>>& elements) const;
  // "shapes":[{"fullpath":..,"filename":..},...] in the order they were added.
  std::string toJsonShapes() const;
  // "savedSelection":[{"label":..,"ids":[...]},...] in the order of the labels.
  std::string toJsonSavedSelectionElements() const;

 protected:
  // The members of the scenario's kind, which stand between the shapes and the selections.
  virtual JsonSaveBuilder::Members toJsonSpecific() const = 0;
  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }

 private:
  std::shared_ptr<Scenario> scenario;
};
