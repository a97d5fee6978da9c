#pragma once

#include <string>
#include <vector>

#include "optimization/expression/ElementStoreExpression.h"

// A node with one child per element: child i is read on element i alone, and the values are
// reduced by the subclass.
class SeveralFunctionsExpression : public ElementStoreExpression {
 public:
  using ElementStoreExpression::ElementStoreExpression;

  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;
  std::vector<unsigned int> getElementIDs() const override { return elementIDs; }

  void addExpression(ExpressionPtr child, unsigned int elementID);
  void changeExpression(std::size_t index, ExpressionPtr child);
  void changeIDInIndex(std::size_t index, unsigned int elementID);
  void removeLastExpression();
  void setVectorOfElementIDs(std::vector<unsigned int> ids) { elementIDs = std::move(ids); }

 protected:
  // Child i read on element i; countText when the children and the elements differ in number.
  std::vector<double> valuesPerElement(const Context& context, const char* countText) const;
  std::string joined(const std::string& prefix, const std::string& separator,
                     const std::string& suffix, bool general) const;

 private:
  std::vector<ExpressionPtr> expressions;
  std::vector<unsigned int> elementIDs;
};
