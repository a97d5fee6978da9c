#pragma once

#include "optimization/expression/ExpressionDefinition.h"

// A node of a formula: child ^ (1 / index).
class RadiciationExpression : public ExpressionDefinition {
 public:
  RadiciationExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                        std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  const ExpressionPtr& getRootingExpression() const { return rootingExpression; }
  void setRootingExpression(ExpressionPtr value) { rootingExpression = std::move(value); }
  int getIndex() const { return index; }
  void setIndex(int value) { index = value; }

 private:
  std::string render(bool general) const;

  ExpressionPtr rootingExpression;
  int index = 2;
};
