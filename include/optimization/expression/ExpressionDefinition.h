#pragma once

#include <memory>
#include <string>
#include <vector>

#include "optimization/expression/Context.h"
#include "vocabulary/EnumExpressionTypeFactory.h"

class ExpressionDefinition;
using ExpressionPtr = std::shared_ptr<ExpressionDefinition>;

// A node of a user's formula. The tree is owned from the root down; a node keeps a weak link to
// its parent so that the dialog can walk up when the user replaces a node.
class ExpressionDefinition {
 public:
  ExpressionDefinition(Enum<ExpressionType> type, std::weak_ptr<ExpressionDefinition> parent,
                       std::string name, std::string description = "fx()");
  virtual ~ExpressionDefinition() = default;

  virtual double interpret(Context context) const = 0;
  virtual std::string getPreVisualization() const = 0;
  virtual std::string getGeneralFormat() const = 0;
  virtual std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const = 0;
  // Whether every child is present and valid, asked in order and stopping at the first failure;
  // a leaf is valid as it stands.
  virtual bool validate() const;
  // Puts newChild where oldChild is; a node without oldChild among its children is unchanged.
  virtual void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) = 0;

  const Enum<ExpressionType>& getExpressionType() const { return expressionType; }
  const std::string& getName() const { return name; }
  void setName(std::string value) { name = std::move(value); }
  const std::string& getDescription() const { return description; }
  void setDescription(std::string value) { description = std::move(value); }
  ExpressionPtr getParent() const { return parent.lock(); }
  void setParent(std::weak_ptr<ExpressionDefinition> value) { parent = std::move(value); }

 protected:
  // A child's value; a missing child is refused with its node's name rather than crashing.
  double evaluate(const ExpressionPtr& child, const Context& context) const;
  // A child's general format or pre-visualisation; a missing child renders as nothing.
  static std::string text(const ExpressionPtr& child, bool general);
  static void replaceIfSame(ExpressionPtr& slot, const ExpressionPtr& oldChild,
                            const ExpressionPtr& newChild);

 private:
  Enum<ExpressionType> expressionType;
  std::weak_ptr<ExpressionDefinition> parent;
  std::string name;
  std::string description;
};
