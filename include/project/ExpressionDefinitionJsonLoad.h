#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "optimization/expression/ExpressionDefinition.h"

// Reads a node of a formula written by ExpressionDefinitionJsonSave, and its children under it.
// Every refusal is a JsonLoadException at the value at fault.
class ExpressionDefinitionJsonLoad {
 public:
  using json = nlohmann::json;

  // How deep a formula may nest; deeper ones are refused rather than read by ever deeper calls.
  static constexpr int maximumDepth = 100;

  virtual ~ExpressionDefinitionJsonLoad() = default;

  // The formula of object under parent, its type read from "type" and "parameterType".
  static ExpressionPtr loadExpression(const json& object,
                                      std::weak_ptr<ExpressionDefinition> parent = {});
  // The node of type of object under parent.
  ExpressionPtr load(const json& object, ExpressionType type,
                     std::weak_ptr<ExpressionDefinition> parent) const;

 protected:
  // Reads the members of specificContent into node, already made of its type.
  virtual void loadSpecific(const json& content, const ExpressionPtr& node) const = 0;

  template <typename Node>
  static Node& as(const ExpressionPtr& node) {
    return static_cast<Node&>(*node);
  }
  // The formula under member key of content, a child of node.
  static ExpressionPtr child(const json& content, const std::string& key,
                             const ExpressionPtr& node);
  // The children of node under "expressionsAndElements", required: an array of
  // {"elementID":<id>,"expression":<child>}.
  static std::vector<std::pair<ExpressionPtr, unsigned int>> childrenOnElements(
      const json& content, const ExpressionPtr& node);
};
