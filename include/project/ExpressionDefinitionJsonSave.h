#pragma once

#include <memory>
#include <string>

#include "optimization/expression/ExpressionDefinition.h"
#include "project/JsonSaveBuilder.h"

// Writes a node of a formula, its children nested in it: {"type":"<display name>","parameterType":
// "<parameter kind>","name":...,"nameChoicedByUser":...,"specificContent":{<keys of the kind>}}.
// The name the user chose is the node's description.
class ExpressionDefinitionJsonSave {
 public:
  explicit ExpressionDefinitionJsonSave(ExpressionPtr expression);
  virtual ~ExpressionDefinitionJsonSave() = default;

  std::string toJson() const;

 protected:
  // The members of specificContent.
  virtual JsonSaveBuilder::Members toJsonSpecific() const = 0;

  template <typename Node>
  const Node& getExpression() const {
    return static_cast<const Node&>(*expression);
  }
  // "key":<the child's object>.
  static std::string child(const std::string& key, const ExpressionPtr& child);

 private:
  ExpressionPtr expression;
};
