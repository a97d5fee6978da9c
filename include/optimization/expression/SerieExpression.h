#pragma once

#include "optimization/expression/ExpressionDefinition.h"
#include "vocabulary/EnumTypes.h"

// A leaf of a formula: the sum of one result series of the first element of the context, over
// the first window of the run. A series enters a formula only reduced to one number.
class SerieExpression : public ExpressionDefinition {
 public:
  SerieExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                  std::string description = "fx()");

  double interpret(Context context) const override;
  std::string getPreVisualization() const override;
  std::string getGeneralFormat() const override;
  std::vector<ExpressionPtr> getVectorOfExpressionDefinitions() const override;
  void updateChieldPointer(const ExpressionPtr& oldChild, ExpressionPtr newChild) override;

  SerieType getSerieType() const { return serieType; }
  void setSerieOutputType(SerieType type) { serieType = type; }

 private:
  SerieType serieType = SerieType{};
};
