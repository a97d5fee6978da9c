#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "common/Interval.h"
#include "core/ExecutionMethod.h"
#include "core/Scenario.h"
#include "project/JsonLoadNode.h"

// Reads a scenario object into a new scenario: its interval and execution method, name and ids,
// shapes, nodes, then links (which find their ends among the nodes), saved selections and the
// keys of its kind; then the release rules find the reservoirs they depend on. The scenario is
// built apart from everything else and is only handed over when the whole object has been read.
// A node item without "node", "element" or "elementType" makes no element, and the links of a
// scenario with such an item are not read. Each kind of scenario derives a reader.
class JsonLoadScenario {
 public:
  virtual ~JsonLoadScenario() = default;

  // The scenario of object. Throws JsonLoadException for a missing required key or an element id
  // used twice, nlohmann::json::type_error for a value of the wrong type, std::invalid_argument
  // from the reader factories for a kind without a reader, and the model's exceptions for values
  // it refuses.
  std::shared_ptr<Scenario> load(const nlohmann::json& object);
  // Whether a link of the scenario read last carried the obsolete link limit object.
  bool isOldTrafficLimit() const { return oldTrafficLimit; }

 protected:
  // Reads the keys of the scenario's kind.
  virtual void specificLoad(const nlohmann::json& object, Scenario& scenario) const = 0;
  // A new scenario of the reader's kind, without elements.
  virtual std::shared_ptr<Scenario> getInstance(const std::shared_ptr<ExecutionMethod>& method,
                                                unsigned int id, const Interval& interval,
                                                const std::string& name) const = 0;

 private:
  // Refuses at methodType a method that the kind of scenario named by object's "type" does not
  // run, before a scenario of that kind is made around it.
  static void checkMethodFitsKind(const nlohmann::json& object, const nlohmann::json& methodType);
  void loadElements(const nlohmann::json& object, const std::shared_ptr<Scenario>& scenario);
  // Reads each node item into a new node with its reader kept in loaders. Throws
  // JsonLoadException for an item without its wrapper, element or type.
  static void loadNodes(const nlohmann::json& nodes, const std::shared_ptr<Scenario>& scenario,
                        std::vector<std::shared_ptr<JsonLoadNode>>& loaders);
  void loadLinks(const nlohmann::json& object, const std::shared_ptr<Scenario>& scenario);
  static void loadShapes(const nlohmann::json& object, Scenario& scenario);
  static void loadSavedSelection(const nlohmann::json& object, Scenario& scenario);

  bool oldTrafficLimit = false;
};
